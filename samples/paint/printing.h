#pragma once

#include "canvas.h"

namespace vexal::sample {

/// The publisher's sign: a house with a lantern for a window, and its name.
void imprint(Canvas &canvas, QPointF at, double height, const QColor &colour);

/// The thirteenth digit that belongs to twelve of an EAN-13 number.
QChar checkDigit(QStringView twelve);

/// An EAN-13 barcode on a white ground, its bars first at `at`: `module` is the width of the thinnest bar. The number
/// has thirteen digits; the last is drawn as given, right or wrong.
void barcode(Canvas &canvas, QPointF at, double module, const QString &number);

/// Crop marks, registration marks, a colour bar and the printer's line round a page that is trimmed to `trim`.
void printMarks(Canvas &canvas, const QSize &sheet, const QRectF &trim, const QString &line);

/// A round medal with words along its rim.
struct Medal
{
    QString above, below; ///< Along the rim.
    QColor metal = ink(0xE9B44C);
    QColor dark = ink(0x4A2545);
};
void medal(Canvas &canvas, QPointF at, double radius, const Medal &medal);

} // namespace vexal::sample
