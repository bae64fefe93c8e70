#pragma once

#include <QStringList>

namespace vexal {

/// "Ostrel Print · PO 2231 · 16 p": the facts that say something, in their order.
QString joinedFacts(const QStringList &facts);

/// "1 real issue", "2 real issues".
QString counted(qint64 number, const QString &noun);

} // namespace vexal
