#pragma once

#include "canvas.h"

namespace vexal::sample {

/// The feathers of an owl.
struct Plumage
{
    QColor back = ink(0x7A5A3F);
    QColor wing = ink(0x5E432F);
    QColor front = ink(0xEBD6AE);
    QColor face = ink(0xFBF1DE);
    QColor beak = ink(0xE29A2D);
    QColor eye = ink(0x231A16);
};

/// An owl that stands at `at`, on its branch or on the ground.
void owl(Canvas &canvas, QPointF at, double height, const Plumage &plumage = {});

/// A leafy branch, `width` wide about its middle.
void branch(Canvas &canvas, QPointF at, double width, const QColor &wood, const QColor &leaf);

/// An envelope with a round seal of wax.
void letter(Canvas &canvas, QPointF at, double width, double degrees, const QColor &paper, const QColor &wax);
/// The seal alone.
void waxSeal(Canvas &canvas, QPointF at, double radius, const QColor &wax);

} // namespace vexal::sample
