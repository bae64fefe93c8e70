#pragma once

#include <QStringList>

namespace vexal {

/// The text as part of a longer line: one that is written from the right does not turn what stands around it.
QString isolated(const QString &text);

/// "Ostrel Print · PO 2231 · 16 p": the facts that say something, in their order.
QString joinedFacts(const QStringList &facts);

/// "1 real issue", "2 real issues".
QString counted(qint64 number, const QString &noun);

} // namespace vexal
