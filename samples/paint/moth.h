#pragma once

#include "canvas.h"

namespace vexal::sample {

/// The wings of a moth.
struct Wings
{
    QColor wing = ink(0xC9935A);
    QColor band = ink(0xF3DDB3);
    QColor edge = ink(0xFBEFD3);
    QColor hind = ink(0xD9BE8F);
    QColor ring = ink(0x6B2F4E);
    QColor spot = ink(0xE8A33C);
    QColor body = ink(0x3A2238);
};

/// A great moth, its wings spread, its middle at `at`.
void moth(Canvas &canvas, QPointF at, double span, const Wings &wings = {}, double degrees = 0);

/// A plain small moth, as many fly round a lamp.
void littleMoth(Canvas &canvas, QPointF at, double span, const QColor &wing, double degrees = 0);

} // namespace vexal::sample
