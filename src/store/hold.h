#pragma once

#include <memory>
#include <utility>

namespace vexal {

/// What the parts of an operation share while they last: each keeps a copy, and as the last of them goes, by whatever
/// way the operation ended, what was to happen at its end happens, once.
using Hold = std::shared_ptr<const void>;

/// A hold at whose end `end` runs.
template <typename End>
Hold holdUntil(End end)
{
    return {nullptr, [end = std::move(end)](const void *) { end(); }};
}

} // namespace vexal
