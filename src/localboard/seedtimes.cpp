#include "seed.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <type_traits>

namespace vexal::local {

namespace {

constexpr std::array<std::string_view, 10> timeKeys = {"at",        "beat",     "created", "edited",   "finished",
                                                       "last_seen", "received", "started", "state_at", "status_at"};

/// Calls \a visit with every time that is in \a value, the field \a key of a record, at any depth.
template <typename T, typename Visit>
void eachTime(std::string_view key, T &value, const Visit &visit)
{
    if constexpr (Record<T>) {
        forEachField(value, [&](const char *inner, auto &field) { eachTime(inner, field, visit); });
    } else if constexpr (requires { value.has_value(); }) {
        if (value)
            eachTime(key, *value, visit);
    } else if constexpr (requires { requires Record<std::remove_reference_t<decltype(*value.begin())>>; }) {
        for (auto &each : value)
            eachTime(key, each, visit);
    } else if constexpr (std::is_same_v<T, double>) {
        if (std::find(timeKeys.begin(), timeKeys.end(), key) != timeKeys.end())
            visit(value);
    }
}

} // namespace

void moveTimes(Seed &seed, double newest)
{
    double last = 0;
    eachTime({}, seed.sample, [&](double time) { last = std::max(last, time); });
    const auto move = [by = newest - last](double &time) { time += by; };
    eachTime({}, seed.sample, move);
    eachTime({}, seed.inbox, move);
}

} // namespace vexal::local
