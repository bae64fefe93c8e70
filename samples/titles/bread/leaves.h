#pragma once

#include "plan.h"

/// The four sides of the cover of Bread for the Giant.
namespace vexal::sample::bread {

inline constexpr QSize page{1360, 1700};
inline constexpr QRectF whole{0, 0, 1360, 1700};

Leaf front();
Leaf insideFront();
Leaf insideBack();
Leaf back();

} // namespace vexal::sample::bread
