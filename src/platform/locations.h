#pragma once

#include <QString>

namespace vexal {

/// The folder in which pictures outlast a run: "Vexal/img" in the person's caches. It may not exist yet.
QString picturesFolder();

/// The folder of the person's downloads. It may not exist yet.
QString downloadsFolder();

/// The folder of what the program remembers of its own use: "Vexal" in the person's state folder. It may not exist yet.
QString stateFolder();

/// The folder for sockets and the like, which nobody but the person can open, and which lasts as long as they are
/// logged in.
QString runtimeFolder();

} // namespace vexal
