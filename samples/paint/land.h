#pragma once

#include "canvas.h"

namespace vexal::sample {

/// Rolling ground across the area, its crest swinging about `top`, down to the area's foot.
void hills(Canvas &canvas, const QRectF &area, double top, double swing, quint64 seed, const QColor &crest,
           const QColor &foot);

/// A fir on the ground at `at`.
void fir(Canvas &canvas, QPointF at, double height, const QColor &colour);
/// A round-crowned tree; with fruit when that ink is valid.
void roundTree(Canvas &canvas, QPointF at, double height, const QColor &crown, const QColor &trunk,
               const QColor &fruit = {});
/// A great old tree at the edge of a picture, its branch reaching to the right.
void oldTree(Canvas &canvas, QPointF at, double height, const QColor &trunk, const QColor &leaves);
/// A few blades of grass.
void tuft(Canvas &canvas, QPointF at, double height, const QColor &colour);
/// Grass and small flowers along the ground.
void meadow(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &grass, const QColor &petal);
/// A path that winds from the foot of the picture to a point on the hill.
void windingPath(Canvas &canvas, QPointF foot, QPointF end, double width, const QColor &colour);

/// A small house with a lit window.
void house(Canvas &canvas, QPointF at, double width, const QColor &wall, const QColor &roof, const QColor &window);
/// A windmill.
void mill(Canvas &canvas, QPointF at, double height, const QColor &wall, const QColor &sails, const QColor &window);
/// A gate between two posts.
void gate(Canvas &canvas, QPointF at, double width, const QColor &wood);

} // namespace vexal::sample
