#pragma once

#include "canvas.h"

namespace vexal::sample {

/// The coat of a fox.
struct Coat
{
    QColor fur = ink(0xE06C2C);
    QColor shade = ink(0xB9501F);
    QColor bib = ink(0xFCEBD6);
    QColor dark = ink(0x2A1A18);
    QColor scarf; ///< None unless valid.
};

/// The fox sits and looks out of the page; its ground is at `at`. Facing left when `left`.
void sittingFox(Canvas &canvas, QPointF at, double height, const Coat &coat = {}, bool left = false);
/// The fox walks to the right, or to the left.
void walkingFox(Canvas &canvas, QPointF at, double height, const Coat &coat = {}, bool left = false);
/// The fox sleeps, curled up.
void sleepingFox(Canvas &canvas, QPointF at, double width, const Coat &coat = {});

} // namespace vexal::sample
