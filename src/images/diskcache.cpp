#include "diskcache.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qsizetype longestName = 255; ///< Bytes, on every file system that desktops use.
constexpr qsizetype tailSize = 1024;   ///< Bytes: some programs write a little behind the end.

// Whether a file ends as its format ends: a copy that broke off does not. Formats without a mark at their end pass.
bool isWhole(const QByteArray &head, const QByteArray &tail)
{
    if (head.startsWith("\xff\xd8"))
        return tail.contains("\xff\xd9");
    if (head.startsWith("\x89PNG"))
        return tail.contains("IEND");
    return true;
}

bool isWhole(QFile &file)
{
    const QByteArray head = file.read(4);
    file.seek(std::max<qint64>(0, file.size() - tailSize));
    return isWhole(head, file.readAll());
}

} // namespace

std::optional<QString> cacheFileName(const QString &key)
{
    QString name = key;
    name.replace(u'/', u'_');
    const bool usable = !name.isEmpty() && name != "."_L1 && name != ".."_L1 && !name.contains(QChar(u'\0'));
    if (!usable || name.toUtf8().size() > longestName)
        return std::nullopt;
    return name;
}

DiskCache::DiskCache(const QString &folder)
    : m_folder(folder)
{
    if (!m_folder.isEmpty())
        QDir().mkpath(m_folder);
}

QString DiskCache::pathOf(const QString &key)
{
    const auto name = cacheFileName(key);
    if (m_folder.isEmpty() || !name)
        return {};
    QString path = m_folder + u'/' + *name;
    Owner &owner = m_ownerOfName[*name];
    if (owner.key == key)
        return path;
    if (owner.wrote)
        return {};
    // Nobody knows for which of the two an earlier run left the file.
    if (!owner.key.isEmpty()) {
        QFile::remove(path);
        m_doubted.append(owner.key);
    }
    owner.key = key;
    return path;
}

QStringList DiskCache::takeDoubted()
{
    return std::exchange(m_doubted, {});
}

std::optional<Picture> DiskCache::read(const QString &key)
{
    const QString path = pathOf(key);
    if (path.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !isWhole(file))
        return std::nullopt;
    return Picture::fromFile(path);
}

std::optional<Picture> DiskCache::write(const QString &key, const QByteArray &bytes)
{
    const QString path = pathOf(key);
    if (path.isEmpty() ||
        !isWhole(bytes.first(std::min<qsizetype>(4, bytes.size())), bytes.last(std::min(tailSize, bytes.size()))))
        return std::nullopt;
    QSaveFile file(path);
    // What its buffer cannot get rid of, on a full disk, commit() does not notice.
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!written || !file.commit())
        return std::nullopt;
    m_ownerOfName[*cacheFileName(key)].wrote = true;
    return Picture::fromFile(path);
}

void DiskCache::remove(const QString &key)
{
    if (const QString path = pathOf(key); !path.isEmpty())
        QFile::remove(path);
}

} // namespace vexal
