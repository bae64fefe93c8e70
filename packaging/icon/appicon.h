#pragma once

#include <QImage>

namespace vexal {

/// The program's icon, the mark on a sheet of paper, painted for that many pixels on a side: the halves of the mark
/// begin and end on whole pixels; small icons leave no room around the sheet, and their lines are whole pixels wide.
QImage appIcon(int side);

/// The same as an SVG document, for any size.
QByteArray appIconSvg();

} // namespace vexal
