#pragma once

#include "clock.h"

#include <optional>

namespace vexal {

/// How far the board on the screen can be trusted.
enum class Freshness {
    Offline,    ///< The last refresh failed.
    Connecting, ///< No refresh has succeeded yet.
    Live,       ///< The last one succeeded.
};

/// Which of the three it is, given the problem of the last refresh and when one last succeeded.
Freshness freshness(const std::optional<QString> &problem, const std::optional<QDateTime> &lastOK);

/// When a board of that moment stops being up to date.
QDateTime upToDateUntil(const QDateTime &lastOK);

/// "Offline", "Connecting", "Up to date", or after 90 seconds "Updated 3 min ago".
QString liveText(const std::optional<QString> &problem, const std::optional<QDateTime> &lastOK, const Clock &clock);

} // namespace vexal
