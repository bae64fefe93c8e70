#pragma once

#include "plan.h"

/// The map and the letters of the Slow Post.
namespace vexal::sample::slow {

Leaf map();
Leaf letterTwo();
Leaf letterThree();
/// A page of the press that is not ours.
Leaf controlPage();

} // namespace vexal::sample::slow
