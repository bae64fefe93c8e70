#pragma once

#include "preferences.h"

#include <QHash>
#include <QSettings>

namespace vexal {

/// Preferences in an INI file, group General. A preference can be given for one run on the command line
/// ("-ServerURL http://127.0.0.1:8123"): it then outranks the file and is never written to it.
class FilePreferences : public Preferences
{
public:
    /// `arguments` are those of the program; what they do not name comes from the file at `path`.
    explicit FilePreferences(const QString &path, const QStringList &arguments = {});

    /// Vexal/Vexal.conf in the person's configuration folder.
    static QString defaultPath();

    std::optional<QString> value(QStringView key) override;
    void setValue(QStringView key, const QString &value) override;
    void remove(QStringView key) override;

private:
    QSettings m_file;
    QHash<QString, QString> m_forThisRun;
};

} // namespace vexal
