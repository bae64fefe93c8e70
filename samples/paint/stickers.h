#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A toadstool on the ground at `at`.
void mushroom(Canvas &canvas, QPointF at, double height, const QColor &cap);
/// A flower that opens at night.
void moonflower(Canvas &canvas, QPointF at, double height, const QColor &petal);
/// A bee that flies right.
void bee(Canvas &canvas, QPointF at, double width);
/// A watering can.
void wateringCan(Canvas &canvas, QPointF at, double width, const QColor &tin);
/// A thin moon with a face.
void crescent(Canvas &canvas, QPointF at, double radius, const QColor &gold);
/// A tram seen from its side, its wheels on `at`.
void tram(Canvas &canvas, QPointF at, double width, const QColor &paint, const QColor &window);

} // namespace vexal::sample
