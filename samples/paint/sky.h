#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A sky from its top to its foot.
void sky(Canvas &canvas, const QRectF &area, const QList<QColor> &inks);

/// Scattered stars, fewer and fainter towards the foot of the area.
void stars(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour);

/// How a moon shines.
struct Moonlight
{
    QColor face = ink(0xFBE7AE);
    QColor shade = ink(0xEBCB85);
    QColor halo = ink(0xFBE7AE, 0.12);
    bool craters = true;
};
void moon(Canvas &canvas, QPointF at, double radius, const Moonlight &light = {});

/// A sun with a soft ring.
void sun(Canvas &canvas, QPointF at, double radius, const QColor &colour);

/// A flat-footed cloud.
void cloud(Canvas &canvas, QPointF at, double width, const QColor &colour);

/// A veil that thickens downwards.
void mist(Canvas &canvas, const QRectF &area, const QColor &colour);

/// Small lights adrift.
void fireflies(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour);

/// A glow that fades out at the radius.
void glow(Canvas &canvas, QPointF at, double radius, const QColor &colour);

/// Slanting rain.
void rain(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour);

/// Two strokes of a gull far away.
void gull(Canvas &canvas, QPointF at, double width, const QColor &colour);

} // namespace vexal::sample
