#pragma once

#include <QString>

#include <optional>

namespace vexal {

/// Gives this process, and every one that it starts, a network and mounts of its own, in which it may do what only the
/// administrator of a machine may. To be called before a thread is started. When the system does not let it: why.
std::optional<QString> seclude();

} // namespace vexal
