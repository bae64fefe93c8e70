#pragma once

#include "picture.h"

#include <QHash>

namespace vexal {

/// The folder in which pictures outlast a run: a file a blob key, named by the key with "/" written as "_". Keys come
/// from outside: one that would not name a file of this folder is neither read nor written. Of two keys that name the
/// same file the first to write it in this run has it; what an earlier run left there is neither's once both are known.
class DiskCache
{
public:
    /// Makes the folder with its parents. Without a folder (an empty path) nothing is kept.
    explicit DiskCache(const QString &folder);

    QString folder() const { return m_folder; }

    /// The key's picture; none when there is no file of it, or only part of one.
    std::optional<Picture> read(const QString &key);
    /// Keeps the bytes of a picture and answers it as the file; none when they could not be written.
    std::optional<Picture> write(const QString &key, const QByteArray &bytes);
    /// Forgets a key's file, which turned out to be no picture.
    void remove(const QString &key);
    /// The keys whose pictures, read before, may be those of others. Each is told once.
    QStringList takeDoubted();

private:
    struct Owner
    {
        QString key;
        bool wrote = false; ///< In this run.
    };

    QString pathOf(const QString &key);

    QString m_folder;
    QHash<QString, Owner> m_ownerOfName;
    QStringList m_doubted;
};

/// The name of a key's file, or nothing for a key that names none: "", ".", "..", with a NUL, or longer than a file
/// name can be.
std::optional<QString> cacheFileName(const QString &key);

} // namespace vexal
