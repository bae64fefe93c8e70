#include "moments.h"
#include "seed.h"

#include <algorithm>

namespace vexal::local {

void moveTimes(Seed &seed, double newest)
{
    double last = 0;
    forEachMoment(seed.sample, [&](double time) { last = std::max(last, time); });
    const auto move = [by = newest - last](double &time) { time += by; };
    forEachMoment(seed.sample, move);
    forEachMoment(seed.inbox, move);
}

} // namespace vexal::local
