#pragma once

#include "sheet.h"

namespace vexal::sample {

/// What a scanner makes of a page: 0.4 degrees askew, 3 pixels off, with a slight grain that `seed` decides. The places
/// move with the picture.
Print scanned(const Print &page, quint64 seed);

} // namespace vexal::sample
