#pragma once

#include <string_view>

namespace vexal {

/// Whether \a json, which must be valid UTF-8, is one JSON value by its grammar, blanks around it allowed. Numbers may
/// be of any size and values nested to any depth; a surrogate without its other half is an error.
bool isWellFormed(std::string_view json);

} // namespace vexal
