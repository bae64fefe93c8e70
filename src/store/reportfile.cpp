#include "reportfile.h"

#include <QDir>
#include <QTemporaryFile>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qsizetype mostBytes = 200; ///< Of a name; a number and ".pdf" still fit behind it.
constexpr int mostNumbers = 10'000;

/// The longest beginning of `name` of whole characters, as people count them, that is no longer than `mostBytes`.
QString cut(const QString &name)
{
    if (name.toUtf8().size() <= mostBytes)
        return name;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, name);
    qsizetype end = 0;
    for (auto next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
        if (QStringView(name).first(next).toUtf8().size() > mostBytes)
            break;
        end = next;
    }
    return name.first(end);
}

bool isForbidden(QChar sign)
{
    return sign == u'/' || sign.category() == QChar::Other_Control;
}

/// Gives the file a name that no other has: in one step, for another may be about to take it.
bool named(const QByteArray &file, const QByteArray &name)
{
    if (::renameat2(AT_FDCWD, file.constData(), AT_FDCWD, name.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // File systems that lie elsewhere know only links.
    return errno == EINVAL && ::link(file.constData(), name.constData()) == 0;
}

QString numbered(const QString &name, int number)
{
    return (number == 1 ? name : name + u' ' + QString::number(number)) + u".pdf"_s;
}

} // namespace

QString reportName(const std::optional<QString> &title)
{
    QString name = title.value_or(QString());
    if (name.trimmed().isEmpty())
        return u"Vexal report"_s;
    std::replace_if(name.begin(), name.end(), isForbidden, u'-');
    // A name that begins with a dot would hide the file.
    if (name.startsWith(u'.'))
        name[0] = u'-';
    return cut(name);
}

std::optional<QString> saveReport(const QString &folder, const std::optional<QString> &title, const QByteArray &bytes)
{
    const QDir downloads(folder);
    downloads.mkpath(u"."_s);
    // Without a name as long as it is not whole, where the file system can do that.
    QTemporaryFile file(downloads.filePath(u".vexal-XXXXXX"_s));
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return {};
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray whole = QFile::encodeName(file.fileName());
    const QString name = reportName(title);
    for (int number = 1; number <= mostNumbers; ++number) {
        const QString path = downloads.filePath(numbered(name, number));
        if (named(whole, QFile::encodeName(path)))
            return path;
        if (errno != EEXIST)
            return {};
    }
    return {};
}

} // namespace vexal
