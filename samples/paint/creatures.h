#pragma once

#include "canvas.h"

namespace vexal::sample {

/// The colours of a creature of the tide pool.
struct Skin
{
    QColor main;
    QColor light;
    QColor dark;
};

/// A creature at the origin, about 200 units each way.
using Creature = void (*)(Canvas &canvas, const Skin &skin);

void starfish(Canvas &canvas, const Skin &skin);
void crab(Canvas &canvas, const Skin &skin);
void seahorse(Canvas &canvas, const Skin &skin);
void jellyfish(Canvas &canvas, const Skin &skin);
void octopus(Canvas &canvas, const Skin &skin);
void whelk(Canvas &canvas, const Skin &skin);
void scallop(Canvas &canvas, const Skin &skin);
void urchin(Canvas &canvas, const Skin &skin);
void stripedFish(Canvas &canvas, const Skin &skin);
void pufferfish(Canvas &canvas, const Skin &skin);
void anemone(Canvas &canvas, const Skin &skin);
void coral(Canvas &canvas, const Skin &skin);
void hermitCrab(Canvas &canvas, const Skin &skin);
void turtle(Canvas &canvas, const Skin &skin);
void oyster(Canvas &canvas, const Skin &skin);

/// An eye with a light in it.
void eye(Canvas &canvas, QPointF at, double radius, const QColor &colour = ink(0x20262E));

} // namespace vexal::sample
