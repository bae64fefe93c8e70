#include "filepreferences.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QHash<QString, QString> forThisRun(const QStringList &arguments)
{
    QHash<QString, QString> values;
    for (QStringView key : {preference::serverURL, preference::lastEmail}) {
        const qsizetype at = arguments.indexOf(u'-' + key.toString());
        if (at >= 0 && at + 1 < arguments.size())
            values.insert(key.toString(), arguments[at + 1]);
    }
    return values;
}

} // namespace

FilePreferences::FilePreferences(const QString &path, const QStringList &arguments)
    : m_file(path, QSettings::IniFormat)
    , m_forThisRun(forThisRun(arguments))
{
}

QString FilePreferences::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Vexal/Vexal.conf"_L1;
}

std::optional<QString> FilePreferences::value(QStringView key)
{
    const QString name = key.toString();
    if (const auto given = m_forThisRun.constFind(name); given != m_forThisRun.cend())
        return *given;
    m_file.sync();
    if (!m_file.contains(name))
        return std::nullopt;
    // A hand-written value with a comma comes as a list.
    return m_file.value(name).toStringList().join(u',');
}

void FilePreferences::setValue(QStringView key, const QString &value)
{
    m_file.setValue(key.toString(), value);
    m_file.sync();
}

void FilePreferences::remove(QStringView key)
{
    m_file.remove(key.toString());
    m_file.sync();
}

} // namespace vexal
