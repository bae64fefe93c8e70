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
    QTimeZone zone; ///< Where midnight is.
    QLocale locale; ///< Its patterns decide between 12 and 24 hours and between day and month first.

    /// Milliseconds since 1970-01-01 00:00 UTC, as the records count them.
    double milliseconds() const { return double(now().toMSecsSinceEpoch()); }
};

/// This computer's clock, read in the person's own zone and locale.
Clock systemClock();

/// A clock that stands at `moment`. Zone and locale are the person's, until others are assigned.
Clock standingClock(const QDateTime &moment);

/// A clock that shows `moment` now and runs on from there, whatever is done to the computer's own. Zone and locale are
/// the person's, until others are assigned.
Clock clockFrom(const QDateTime &moment);

/// The moment that a record's time stands for: `milliseconds` since 1970-01-01 00:00 UTC. One outside of the years 1 to
/// 9999, which no calendar reads, is brought to the nearer end of them.
QDateTime momentOf(double milliseconds);

} // namespace vexal
