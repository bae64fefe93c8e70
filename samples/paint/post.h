#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A snail with a satchel of letters, going right.
void postSnail(Canvas &canvas, QPointF at, double width, const QColor &shell, const QColor &body, bool left = false);
/// A hot-air balloon; its basket's foot is at `at`.
void balloon(Canvas &canvas, QPointF at, double height, const QColor &light, const QColor &dark);
/// A mountain with snow.
void mountain(Canvas &canvas, QPointF at, double width, const QColor &rock);
/// A compass rose.
void compass(Canvas &canvas, QPointF at, double radius, const QColor &colour, const QColor &accent);
/// A stamp with a toothed edge, for a picture of 80 by 100 units about its middle.
void stampPaper(Canvas &canvas, const QColor &paper, const QColor &ground);
/// A postmark of two rings and four waves.
void postmark(Canvas &canvas, QPointF at, double radius, const QString &town, const QString &date,
              const QColor &colour);

} // namespace vexal::sample
