#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A striped tent on the ground at `at`.
void tent(Canvas &canvas, QPointF at, double width, const QColor &stripe, const QColor &cloth, const QColor &flag);
/// A big wheel.
void wheel(Canvas &canvas, QPointF at, double radius, const QColor &iron, const QList<QColor> &cars);
/// Small flags on a cord that sags between two points.
void bunting(Canvas &canvas, QPointF from, QPointF to, double sag, const QList<QColor> &inks, const QColor &cord);
/// Bulbs on a cord that sags between two points.
void bulbs(Canvas &canvas, QPointF from, QPointF to, double sag, const QColor &light, const QColor &cord);
/// The heads and shoulders of a crowd along the foot of the area.
void crowd(Canvas &canvas, const QRectF &area, quint64 seed, const QColor &colour);

} // namespace vexal::sample
