#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>

namespace vexal {

/// The pixels of a place of a virtual display's frame, as they stand in the file that the display keeps it in: line
/// after line, four bytes each. Empty when the place is not on the display.
QByteArray framePixels(const QString &file, const QRect &place);

} // namespace vexal
