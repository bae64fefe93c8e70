#pragma once

#include "board.h"
#include "clock.h"

namespace vexal {

/// The line of facts under a file's title: order, supplier, pages, sender, day of arrival and, for a reviewed file, by
/// whom (as the screens name that person) and when.
QString fileFacts(const FileItem &file, const QString &reviewer, const Clock &clock);

/// "3 files": the heading of several selected files.
QString filesHeading(qsizetype count);

} // namespace vexal
