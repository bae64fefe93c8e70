#include "defaultbrowser.h"

#include "desktopentry.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

struct Flag
{
    QLatin1StringView program;
    QLatin1StringView flag;
};

/// What stands in the program's name, in its path or in the name of its package.
constexpr std::array flags{
    Flag{"firefox"_L1, "--private-window"_L1},  Flag{"librewolf"_L1, "--private-window"_L1},
    Flag{"chromium"_L1, "--incognito"_L1},      Flag{"chrome"_L1, "--incognito"_L1},
    Flag{"brave"_L1, "--incognito"_L1},         Flag{"vivaldi"_L1, "--incognito"_L1},
    Flag{"edge"_L1, "--inprivate"_L1},          Flag{"opera"_L1, "--private"_L1},
    Flag{"epiphany"_L1, "--incognito-mode"_L1}, Flag{"falkon"_L1, "--private-browsing"_L1},
};

bool speaksOfPrivacy(const QString &text)
{
    return text.contains("private"_L1, Qt::CaseInsensitive) || text.contains("incognito"_L1, Qt::CaseInsensitive);
}

std::optional<QLatin1StringView> flagOf(const QStringList &words)
{
    for (const QString &word : words) {
        const QString name = QFileInfo(word).fileName();
        const auto known = std::find_if(flags.begin(), flags.end(), [&name](const Flag &flag) {
            return name.contains(flag.program, Qt::CaseInsensitive);
        });
        if (known != flags.end())
            return known->flag;
    }
    return std::nullopt;
}

/// Before the page, and before the marks that a sandbox puts around it.
qsizetype placeOfFlag(const QStringList &words)
{
    const auto place = std::find_if(words.begin(), words.end(), [](const QString &word) {
        return word.startsWith(u'%') || word.startsWith("@@"_L1);
    });
    return place - words.begin();
}

} // namespace

std::optional<QStringList> privateCommand(const DesktopEntry &entry, const QUrl &page)
{
    const QString url = page.toString(QUrl::FullyEncoded);
    const auto actions = entry.value(u"Desktop Entry"_s, u"Actions"_s).split(u';', Qt::SkipEmptyParts);
    for (const QString &action : actions) {
        const QString group = "Desktop Action "_L1 + action;
        const QString exec = entry.value(group, u"Exec"_s);
        if (!exec.isEmpty() && speaksOfPrivacy(action + entry.value(group, u"Name"_s) + exec))
            return commandOf(wordsOfExec(exec), url);
    }
    QStringList words = wordsOfExec(entry.value(u"Desktop Entry"_s, u"Exec"_s));
    const auto flag = flagOf(words);
    if (!flag)
        return std::nullopt;
    words.insert(placeOfFlag(words), *flag);
    return commandOf(words, url);
}

DefaultBrowser::DefaultBrowser(Opener &opener, QObject *parent)
    : QObject(parent)
    , m_opener(opener)
{
}

void DefaultBrowser::openPrivately(const QUrl &page)
{
    auto *question = new QProcess(this);
    connect(question, &QProcess::finished, this, [this, question, page] {
        question->deleteLater();
        open(QString::fromUtf8(question->readAllStandardOutput()).trimmed(), page);
    });
    connect(question, &QProcess::errorOccurred, this, [this, question, page](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        question->deleteLater();
        m_opener.openLink(page);
    });
    QTimer::singleShot(std::chrono::seconds(3), question, &QProcess::kill);
    question->start(u"xdg-settings"_s, {u"get"_s, u"default-web-browser"_s});
}

void DefaultBrowser::open(const QString &entryName, const QUrl &page)
{
    const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entryName);
    const auto entry = path.isEmpty() ? std::nullopt : DesktopEntry::read(path);
    const auto command = entry ? privateCommand(*entry, page) : std::nullopt;
    if (!command || !QProcess::startDetached(command->first(), command->sliced(1)))
        m_opener.openLink(page);
}

} // namespace vexal
