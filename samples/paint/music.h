#pragma once

#include "canvas.h"

namespace vexal::sample {

/// Five lines with a treble clef, `width` long from `at` (the top line); the lines are `gap` apart.
void staff(Canvas &canvas, QPointF at, double width, double gap, const QColor &colour);

/// Notes in a row on a staff as above. Each is a step above the lowest line (0 to 9), with "-" between bars, and
/// "h" after a note that is a half.
void notes(Canvas &canvas, QPointF at, double width, double gap, const QString &steps, const QColor &colour);

} // namespace vexal::sample
