#pragma once

#include <QString>

namespace vexal::local {

/// "1 page", "2 pages".
inline QString counted(qint64 number, const QString &what)
{
    return QString::number(number) + u' ' + what + (number == 1 ? QString() : QStringLiteral("s"));
}

} // namespace vexal::local
