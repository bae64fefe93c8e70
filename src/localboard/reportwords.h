#pragma once

#include "board.h"

/// What a report says, without its drawing.
namespace vexal::local {

/// \a parts, without the empty ones, as one line.
QString joined(QStringList parts);

/// A file in one line: order, supplier, pages, status.
QString factsLine(const FileItem &file);

/// How far its review has come: "1 real issue, 2 to look at".
QString tallyLine(const FileItem &file);

/// How grave a finding is, how it stands with it, and who said so (a name, or nothing): "Fix · Real issue · Mira Lund".
QString findingLine(const Finding &finding, const QString &judge);

/// Who wrote a note (a name), and whether it is done with.
QString noteLine(const Note &note, const QString &author);

} // namespace vexal::local
