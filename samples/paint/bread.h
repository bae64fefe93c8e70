#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A round loaf on the ground at `at`, scored across its top.
void loaf(Canvas &canvas, QPointF at, double width, const QColor &crust);
/// A slice of it.
void slice(Canvas &canvas, QPointF at, double width, const QColor &crust, double degrees = 0);
/// An ear of wheat on its stalk.
void wheat(Canvas &canvas, QPointF at, double height, const QColor &ear, double degrees = 0);
/// Steam that rises from `at`.
void steam(Canvas &canvas, QPointF at, double height, const QColor &colour);
/// A ladder against something.
void ladder(Canvas &canvas, QPointF foot, QPointF top, double width, const QColor &wood);

} // namespace vexal::sample
