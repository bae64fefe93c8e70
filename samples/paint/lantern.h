#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A paper lantern that hangs from `at`; dark when not lit.
void lantern(Canvas &canvas, QPointF at, double height, bool lit = true, const QColor &paper = ink(0xF2A03C));

/// A cord that sags through the points.
void cord(Canvas &canvas, const QPolygonF &points, const QColor &colour, double width = 5);

} // namespace vexal::sample
