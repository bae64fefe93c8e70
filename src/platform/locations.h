#pragma once

#include <QString>

namespace vexal {

/// The folder in which pictures outlast a run: "Vexal/img" in the person's caches. It may not exist yet.
QString picturesFolder();

/// The folder of the person's downloads. It may not exist yet.
QString downloadsFolder();

} // namespace vexal
