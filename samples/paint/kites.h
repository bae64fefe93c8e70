#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A kite with its tail; `degrees` is how far it leans.
void kite(Canvas &canvas, QPointF at, double height, const QColor &light, const QColor &dark, double degrees = 0);
/// A fish of silk that swallows the wind.
void fishKite(Canvas &canvas, QPointF at, double length, const QColor &scale, const QColor &belly, double degrees = 0);
/// A kite like a bird's wing.
void wingKite(Canvas &canvas, QPointF at, double span, const QColor &light, const QColor &dark, double degrees = 0);
/// The line that a hand holds.
void kiteLine(Canvas &canvas, QPointF kite, QPointF hand, const QColor &colour);
/// A child seen from behind, one arm up; its hand is at (0.3, -0.98) heights from its feet.
void child(Canvas &canvas, QPointF at, double height, const QColor &coat, const QColor &hair);

} // namespace vexal::sample
