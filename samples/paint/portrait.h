#pragma once

#include "canvas.h"

namespace vexal::sample {

/// A person to be painted, head and shoulders.
struct Sitter
{
    QColor ground;
    QColor skin;
    QColor hair;
    QColor coat;
    bool curls = false;
    bool beard = false;
    bool glasses = false;
};

/// The portrait fills a square of `size` pixels.
void portrait(Canvas &canvas, double size, const Sitter &sitter);

} // namespace vexal::sample
