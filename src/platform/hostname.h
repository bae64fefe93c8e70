#pragma once

#include <QString>

namespace vexal {

/// The name that the person gave this computer, else its host name; empty when it has neither. The given name is read
/// from the file at `machineInfo`.
QString hostName(const QString &machineInfo = QStringLiteral("/etc/machine-info"));

} // namespace vexal
