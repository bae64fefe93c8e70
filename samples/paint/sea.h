#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A boat under sail, its water line at `at`.
void sailboat(Canvas &canvas, QPointF at, double width, const QColor &hull, const QColor &sail, const QColor &stripe);
/// A boat folded from paper.
void paperBoat(Canvas &canvas, QPointF at, double width, const QColor &paper);
/// A lighthouse on its rock.
void lighthouse(Canvas &canvas, QPointF at, double height, const QColor &wall, const QColor &stripe, bool beam = false);
/// Water down to the foot of the area, in rows of waves from far to near.
void waves(Canvas &canvas, const QRectF &area, int rows, const QColor &far, const QColor &near);
/// Tall narrow houses side by side along a quay at `at`.
void quay(Canvas &canvas, QPointF at, double width, const QList<QColor> &walls, const QColor &roof,
          const QColor &window);
/// The cuts of a jigsaw over the area.
void jigsaw(Canvas &canvas, const QRectF &area, int columns, int rows, quint64 seed);

} // namespace vexal::sample
