#include "desktopentry.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString unescaped(QStringView text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        switch (const QChar escaped = text[++i]; escaped.unicode()) {
        case u's':
            result += u' ';
            break;
        case u'n':
            result += u'\n';
            break;
        case u't':
            result += u'\t';
            break;
        case u'r':
            result += u'\r';
            break;
        case u'\\':
            result += u'\\';
            break;
        default:
            result += u'\\';
            result += escaped;
        }
    }
    return result;
}

bool takesUrl(const QString &word)
{
    return word == "%u"_L1 || word == "%U"_L1 || word == "%f"_L1 || word == "%F"_L1;
}

bool isFieldCode(const QString &word)
{
    return word.size() == 2 && word[0] == u'%' && word[1] != u'%';
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    DesktopEntry entry;
    QString group;
    const auto lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        const QStringView text = QStringView(line).trimmed();
        const qsizetype equals = text.indexOf(u'=');
        if (text.startsWith(u'[') && text.endsWith(u']'))
            group = text.sliced(1, text.size() - 2).toString();
        else if (equals > 0 && !text.startsWith(u'#'))
            entry.m_groups[group].insert(text.first(equals).trimmed().toString(),
                                         unescaped(text.sliced(equals + 1).trimmed()));
    }
    return entry;
}

QString DesktopEntry::value(const QString &group, const QString &key) const
{
    return m_groups.value(group).value(key);
}

QStringList wordsOfExec(const QString &exec)
{
    QStringList words;
    QString word;
    bool quoted = false;
    bool begun = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (c == u'"') {
            quoted = !quoted;
            begun = true;
        } else if (quoted && c == u'\\' && i + 1 < exec.size()) {
            word += exec[++i];
        } else if (c == u' ' && !quoted) {
            if (begun)
                words += word;
            word.clear();
            begun = false;
        } else {
            word += c;
            begun = true;
        }
    }
    if (begun)
        words += word;
    return words;
}

QStringList commandOf(const QStringList &words, const QString &argument)
{
    QStringList command;
    bool placed = false;
    for (const QString &word : words) {
        if (takesUrl(word) && !placed) {
            command += argument;
            placed = true;
        } else if (!isFieldCode(word)) {
            command += word == "%%"_L1 ? u"%"_s : word;
        }
    }
    if (!placed)
        command += argument;
    return command;
}

} // namespace vexal
