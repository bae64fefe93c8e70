#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace vexal {

/// A desktop entry file: groups of keys and values.
class DesktopEntry
{
public:
    /// The entry at `path`; nothing when there is no readable file.
    static std::optional<DesktopEntry> read(const QString &path);

    /// The value with its escapes resolved; empty when there is none.
    QString value(const QString &group, const QString &key) const;

private:
    QHash<QString, QHash<QString, QString>> m_groups;
};

/// The words of an Exec value, quotes resolved. Field codes ("%u") are left in.
QStringList wordsOfExec(const QString &exec);

/// The words with `argument` in the place of the first field code that takes a file or URL, at the end when there is
/// none, and without the other field codes.
QStringList commandOf(const QStringList &words, const QString &argument);

} // namespace vexal
