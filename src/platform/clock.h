#pragma once

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

#include <functional>

namespace vexal {

/// Where the program's time comes from, and how it is read by people. Handed to whoever speaks of time, so that tests
/// and photographs can make it stand still.
struct Clock
{
    std::function<QDateTime()> now;
    QTimeZone zone;
    QLocale locale; ///< Its patterns decide between 12 and 24 hours and between day and month first.

    /// Milliseconds since 1970-01-01 00:00 UTC, as the records count them.
    double milliseconds() const { return double(now().toMSecsSinceEpoch()); }
};

} // namespace vexal
