#pragma once

#include "clock.h"

#include <QString>

/// How moments are told. The words are English, as the whole program's are; the person's locale decides only between 12
/// and 24 hours, how hours are set, and whether the day or the month comes first.
namespace vexal {

/// When something happened, as told now: "just now", "7 min ago", "3 hr ago", "Yesterday 15:04", "Monday 15:04",
/// "18 Nov 15:04". Days are those of the clock's zone; a moment to come is "just now".
QString relativeTime(const QDateTime &moment, const Clock &clock);

/// The time of day without seconds: "15:04", "15.04" or "3:04 PM".
QString shortTime(QTime time, const QLocale &locale);

/// Day and abbreviated month: "18 Nov" or "Nov 18".
QString dayMonth(QDate date, const QLocale &locale);

} // namespace vexal
