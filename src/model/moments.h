#pragma once

#include "fields.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

namespace vexal {

/// The keys under which records keep moments: milliseconds since 1970, in floating point.
inline constexpr std::array<std::string_view, 10> momentKeys{
    "at", "beat", "created", "edited", "finished", "last_seen", "received", "started", "state_at", "status_at"};

/// Calls \a visit with every moment that is in \a value, at any depth; \a key is that of the field it stands in.
template <typename Value, typename Visit>
void forEachMoment(Value &value, const Visit &visit, std::string_view key = {})
{
    if constexpr (Record<std::remove_const_t<Value>>) {
        forEachField(value, [&](const char *inner, auto &field) { forEachMoment(field, visit, inner); });
    } else if constexpr (requires { value.has_value(); }) {
        if (value)
            forEachMoment(*value, visit, key);
    } else if constexpr (requires { requires Record<std::remove_cvref_t<decltype(*value.begin())>>; }) {
        for (auto &each : value)
            forEachMoment(each, visit, key);
    } else if constexpr (std::is_same_v<std::remove_const_t<Value>, double>) {
        if (std::ranges::find(momentKeys, key) != momentKeys.end())
            visit(value);
    }
}

} // namespace vexal
