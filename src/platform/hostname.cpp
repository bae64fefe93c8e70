#include "hostname.h"

#include <QSettings>
#include <QSysInfo>

using namespace Qt::StringLiterals;

namespace vexal {

QString hostName(const QString &machineInfo)
{
    const QString given = QSettings(machineInfo, QSettings::IniFormat).value(u"PRETTY_HOSTNAME"_s).toString();
    return given.isEmpty() ? QSysInfo::machineHostName() : given;
}

} // namespace vexal
