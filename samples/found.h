#pragma once

#include "plan.h"

namespace vexal::sample {

/// What the checks say of a change: where it lies on the proof and on ours, the page of the role `against`. It has no
/// id and no page yet. A change that lies nowhere though it has names is a mistake, and stops the program.
Finding found(const Change &change, const QString &against, const Print &proof, const Print &ours);

} // namespace vexal::sample
