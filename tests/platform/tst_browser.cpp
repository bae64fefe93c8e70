#include "defaultbrowser.h"
#include "desktopentry.h"
#include "desktopopener.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QUrl page(u"https://board.example/signin?state=AB%2BC&hint=mira%40x.example"_s);
const QString address = page.toString(QUrl::FullyEncoded);

/// Notes the links that it was asked to open.
class NotingOpener : public vexal::Opener
{
public:
    void openLink(const QUrl &link) override { links += link; }
    void openFile(const QString &, QObject *, std::function<void(bool)>) override {}

    QList<QUrl> links;
};

} // namespace

/// Each test has a folder of programs and one of applications of its own.
class BrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void wordsOfAnExecLine_data();
    void wordsOfAnExecLine();
    void theUrlTakesThePlaceOfTheFieldCode_data();
    void theUrlTakesThePlaceOfTheFieldCode();
    void anEntryIsReadByGroup();
    void aMissingEntryIsNone();

    void aPrivateWindowIsHadBy_data();
    void aPrivateWindowIsHadBy();
    void anUnknownBrowserHasNoPrivateWindow();

    void theDefaultBrowserOpensThePagePrivately();
    void withoutXdgSettingsThePageIsOpenedPlainly();
    void withoutADefaultBrowserThePageIsOpenedPlainly();
    void aBrowserWhoseEntryIsGoneIsNoObstacle();
    void aBrowserThatDoesNotStartIsNoObstacle();
    void theBrowserMayBeForgottenWhileItIsLookedFor();

    void aFileIsOpenedWithItsProgram();
    void aFileWithoutAProgramIsNotOpened();
    void withoutXdgOpenAFileIsNotOpened();
    void aViewerThatStaysHasOpenedTheFile();
    void nobodyIsToldOfAFileWhoHasGone();

private:
    QString entry(const QString &text);
    void program(const QString &name, const QString &script);
    QStringList argumentsOf(const QString &name);

    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void BrowserTest::initTestCase()
{
    m_path = qgetenv("PATH");
}

void BrowserTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"bin"_s));
    QVERIFY(QDir(m_folder->path()).mkpath(u"share/applications"_s));
    qputenv("XDG_DATA_HOME", m_folder->filePath(u"share"_s).toUtf8());
    qputenv("PATH", m_folder->filePath(u"bin"_s).toUtf8());
}

QString BrowserTest::entry(const QString &text)
{
    QString path = m_folder->filePath(u"share/applications/test-browser.desktop"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("The entry was not written.");
    return path;
}

/// A program that notes its arguments, line by line, and then does what `script` says.
void BrowserTest::program(const QString &name, const QString &script)
{
    const QString path = m_folder->filePath("bin/"_L1 + name);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString notes = m_folder->filePath(name);
    file.write(u"#!/bin/sh\nprintf '%s\\n' \"$@\" >'%1.part' && %3 '%1.part' '%1'\n%2\n"_s.replace("%1"_L1, notes)
                   .replace("%2"_L1, script)
                   .replace("%3"_L1, "/bin/mv"_L1)
                   .toUtf8());
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

QStringList BrowserTest::argumentsOf(const QString &name)
{
    const QString path = m_folder->filePath(name);
    if (!QTest::qWaitFor([&path] { return QFile::exists(path); }))
        return {u"never started"_s};
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed().split(u'\n') : QStringList();
}

void BrowserTest::wordsOfAnExecLine_data()
{
    QTest::addColumn<QString>("exec");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("plain") << u"firefox %u"_s << QStringList{u"firefox"_s, u"%u"_s};
    QTest::newRow("quoted") << u"\"/opt/a browser/run\" --x %U"_s
                            << QStringList{u"/opt/a browser/run"_s, u"--x"_s, u"%U"_s};
    QTest::newRow("escaped") << u"run \"a \\\"b\\\" \\$c\""_s << QStringList{u"run"_s, u"a \"b\" $c"_s};
    QTest::newRow("empty word") << u"run  \"\" x"_s << QStringList{u"run"_s, QString(), u"x"_s};
    QTest::newRow("nothing") << u""_s << QStringList();
}

void BrowserTest::wordsOfAnExecLine()
{
    QFETCH(QString, exec);
    QTEST(vexal::wordsOfExec(exec), "words");
}

void BrowserTest::theUrlTakesThePlaceOfTheFieldCode_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("command");
    QTest::newRow("in its place") << QStringList{u"run"_s, u"%u"_s, u"--last"_s}
                                  << QStringList{u"run"_s, u"URL"_s, u"--last"_s};
    QTest::newRow("at the end") << QStringList{u"run"_s} << QStringList{u"run"_s, u"URL"_s};
    QTest::newRow("once") << QStringList{u"run"_s, u"%U"_s, u"%F"_s} << QStringList{u"run"_s, u"URL"_s};
    QTest::newRow("other codes go") << QStringList{u"run"_s, u"%i"_s, u"%c"_s, u"%%"_s}
                                    << QStringList{u"run"_s, u"%"_s, u"URL"_s};
}

void BrowserTest::theUrlTakesThePlaceOfTheFieldCode()
{
    QFETCH(QStringList, words);
    QTEST(vexal::commandOf(words, u"URL"_s), "command");
}

void BrowserTest::anEntryIsReadByGroup()
{
    const auto found = vexal::DesktopEntry::read(entry(
        u"# A comment=1\n[Desktop Entry]\nName = A browser\nName[de]=Ein Browser\nExec=run \\\\\\s%u\n[Desktop Action a]\nExec=x=y\n"_s));
    QVERIFY(found);
    QCOMPARE(found->value(u"Desktop Entry"_s, u"Name"_s), u"A browser"_s);
    QCOMPARE(found->value(u"Desktop Entry"_s, u"Exec"_s), u"run \\ %u"_s);
    QCOMPARE(found->value(u"Desktop Action a"_s, u"Exec"_s), u"x=y"_s);
    QCOMPARE(found->value(u"Desktop Action a"_s, u"Name"_s), QString());
}

void BrowserTest::aMissingEntryIsNone()
{
    QVERIFY(!vexal::DesktopEntry::read(m_folder->filePath(u"none.desktop"_s)));
}

void BrowserTest::aPrivateWindowIsHadBy_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("command");
    const QStringList incognito{u"/usr/bin/chromium"_s, u"--incognito"_s, address};
    QTest::newRow("an action without a place for the URL")
        << u"[Desktop Entry]\nExec=/usr/bin/chromium %U\nActions=new-window;new-private-window;\n"
           "[Desktop Action new-window]\nName=New Window\nExec=/usr/bin/chromium\n"
           "[Desktop Action new-private-window]\nName=New Incognito Window\nExec=/usr/bin/chromium --incognito\n"_s
        << incognito;
    QTest::newRow("an action known by its name only")
        << u"[Desktop Entry]\nExec=run %u\nActions=other;\n[Desktop Action other]\nName=Private page\nExec=run -p %u --x\n"_s
        << QStringList{u"run"_s, u"-p"_s, address, u"--x"_s};
    QTest::newRow("the flag of Chromium") << u"[Desktop Entry]\nExec=/usr/bin/chromium %U\n"_s << incognito;
    QTest::newRow("the flag of Firefox") << u"[Desktop Entry]\nExec=/usr/lib/firefox-esr/firefox-esr %u\n"_s
                                         << QStringList{u"/usr/lib/firefox-esr/firefox-esr"_s, u"--private-window"_s,
                                                        address};
    QTest::newRow("the flag of Edge") << u"[Desktop Entry]\nExec=/usr/bin/microsoft-edge-stable %U\n"_s
                                      << QStringList{u"/usr/bin/microsoft-edge-stable"_s, u"--inprivate"_s, address};
    QTest::newRow("a flag before the marks of a sandbox")
        << u"[Desktop Entry]\nExec=flatpak run --command=firefox --file-forwarding org.mozilla.firefox @@u %u @@\n"_s
        << QStringList{u"flatpak"_s,
                       u"run"_s,
                       u"--command=firefox"_s,
                       u"--file-forwarding"_s,
                       u"org.mozilla.firefox"_s,
                       u"--private-window"_s,
                       u"@@u"_s,
                       address,
                       u"@@"_s};
    QTest::newRow("an action without a command is none")
        << u"[Desktop Entry]\nExec=chromium %U\nActions=private;\n[Desktop Action private]\nName=Private\n"_s
        << QStringList{u"chromium"_s, u"--incognito"_s, address};
}

void BrowserTest::aPrivateWindowIsHadBy()
{
    QFETCH(QString, text);
    const auto found = vexal::DesktopEntry::read(entry(text));
    QVERIFY(found);
    const auto command = vexal::privateCommand(*found, page);
    QVERIFY(command);
    QTEST(*command, "command");
}

void BrowserTest::anUnknownBrowserHasNoPrivateWindow()
{
    const auto found = vexal::DesktopEntry::read(entry(u"[Desktop Entry]\nExec=konqueror %u\n"_s));
    QVERIFY(!vexal::privateCommand(*found, page));
}

void BrowserTest::theDefaultBrowserOpensThePagePrivately()
{
    program(u"xdg-settings"_s, u"echo test-browser.desktop"_s);
    program(u"chromium"_s, {});
    entry("[Desktop Entry]\nExec="_L1 + m_folder->filePath(u"bin/chromium"_s) + " %U\n"_L1);
    NotingOpener opener;
    vexal::DefaultBrowser browser(opener);
    browser.openPrivately(page);
    QCOMPARE(argumentsOf(u"chromium"_s), (QStringList{u"--incognito"_s, address}));
    QCOMPARE(argumentsOf(u"xdg-settings"_s), (QStringList{u"get"_s, u"default-web-browser"_s}));
    QVERIFY(opener.links.isEmpty());
}

void BrowserTest::withoutXdgSettingsThePageIsOpenedPlainly()
{
    NotingOpener opener;
    vexal::DefaultBrowser browser(opener);
    browser.openPrivately(page);
    QTRY_COMPARE(opener.links, QList<QUrl>{page});
}

void BrowserTest::withoutADefaultBrowserThePageIsOpenedPlainly()
{
    program(u"xdg-settings"_s, u"exit 2"_s);
    NotingOpener opener;
    vexal::DefaultBrowser browser(opener);
    browser.openPrivately(page);
    QTRY_COMPARE(opener.links, QList<QUrl>{page});
}

void BrowserTest::aBrowserWhoseEntryIsGoneIsNoObstacle()
{
    program(u"xdg-settings"_s, u"echo gone.desktop"_s);
    NotingOpener opener;
    vexal::DefaultBrowser browser(opener);
    browser.openPrivately(page);
    QTRY_COMPARE(opener.links, QList<QUrl>{page});
}

void BrowserTest::aBrowserThatDoesNotStartIsNoObstacle()
{
    program(u"xdg-settings"_s, u"echo test-browser.desktop"_s);
    entry(u"[Desktop Entry]\nExec=/nowhere/chromium %U\n"_s);
    NotingOpener opener;
    vexal::DefaultBrowser browser(opener);
    browser.openPrivately(page);
    QTRY_COMPARE(opener.links, QList<QUrl>{page});
}

void BrowserTest::theBrowserMayBeForgottenWhileItIsLookedFor()
{
    program(u"xdg-settings"_s, u"exec /bin/sleep 60"_s);
    NotingOpener opener;
    {
        vexal::DefaultBrowser browser(opener);
        browser.openPrivately(page);
        QCOMPARE(argumentsOf(u"xdg-settings"_s).size(), 2);
    }
    QCoreApplication::processEvents();
    QVERIFY(opener.links.isEmpty());
}

void BrowserTest::aFileIsOpenedWithItsProgram()
{
    program(u"xdg-open"_s, {});
    std::optional<bool> opened;
    vexal::DesktopOpener().openFile(u"/a folder/report 100%.pdf"_s, this, [&opened](bool is) { opened = is; });
    QTRY_COMPARE(opened, true);
    QCOMPARE(argumentsOf(u"xdg-open"_s), QStringList{u"/a folder/report 100%.pdf"_s});
}

void BrowserTest::aFileWithoutAProgramIsNotOpened()
{
    program(u"xdg-open"_s, u"exit 3"_s);
    std::optional<bool> opened;
    vexal::DesktopOpener().openFile(u"/report.pdf"_s, this, [&opened](bool is) { opened = is; });
    QTRY_COMPARE(opened, false);
}

void BrowserTest::withoutXdgOpenAFileIsNotOpened()
{
    std::optional<bool> opened;
    vexal::DesktopOpener().openFile(u"/report.pdf"_s, this, [&opened](bool is) { opened = is; });
    QTRY_COMPARE(opened, false);
}

void BrowserTest::aViewerThatStaysHasOpenedTheFile()
{
    const QString end = m_folder->filePath(u"end"_s);
    const QString ended = m_folder->filePath(u"ended"_s);
    program(u"xdg-open"_s, u"while [ ! -e '%1' ]; do /bin/sleep 0.02; done; : >'%2'; exit 3"_s.arg(end, ended));
    QList<bool> told;
    vexal::DesktopOpener(std::chrono::milliseconds(50)).openFile(u"/report.pdf"_s, this, [&told](bool is) {
        told += is;
    });
    QTRY_COMPARE(told, QList<bool>{true});
    QVERIFY(QFile(end).open(QIODevice::WriteOnly));
    QTRY_VERIFY(QFile::exists(ended));
    QCoreApplication::processEvents();
    QCOMPARE(told.size(), 1);
}

void BrowserTest::nobodyIsToldOfAFileWhoHasGone()
{
    program(u"xdg-open"_s, {});
    int told = 0;
    auto context = std::make_unique<QObject>();
    vexal::DesktopOpener opener(std::chrono::milliseconds(50));
    opener.openFile(u"/report.pdf"_s, context.get(), [&told](bool) { ++told; });
    context.reset();
    QCOMPARE(argumentsOf(u"xdg-open"_s).size(), 1);
    std::optional<bool> later;
    opener.openFile(u"/report.pdf"_s, this, [&later](bool is) { later = is; });
    QTRY_COMPARE(later, true);
    QCOMPARE(told, 0);
}

QTEST_GUILESS_MAIN(BrowserTest)
#include "tst_browser.moc"
