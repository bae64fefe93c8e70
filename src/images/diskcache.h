#pragma once

#include "picture.h"

#include <QHash>

namespace vexal {

/// The folder in which pictures outlast a run: a file a blob key, named by the key with "/" written as "_". Keys come
/// from outside: one that would not name a file of this folder is neither read nor written, and of two keys that name
/// the same file the one that was known first in this run has it.
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

private:
    QString pathOf(const QString &key);

    QString m_folder;
    QHash<QString, QString> m_keyOfName;
};

/// The name of a key's file, or nothing for a key that names none: "", ".", "..", with a NUL, or longer than a file
/// name can be.
std::optional<QString> cacheFileName(const QString &key);

} // namespace vexal
