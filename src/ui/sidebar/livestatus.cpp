#include "livestatus.h"

#include "relativetime.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qint64 freshSeconds = 90;

} // namespace

Freshness freshness(const std::optional<QString> &problem, const std::optional<QDateTime> &lastOK)
{
    if (problem)
        return Freshness::Offline;
    return lastOK ? Freshness::Live : Freshness::Connecting;
}

QDateTime upToDateUntil(const QDateTime &lastOK)
{
    return lastOK.addSecs(freshSeconds);
}

QString liveText(const std::optional<QString> &problem, const std::optional<QDateTime> &lastOK, const Clock &clock)
{
    switch (freshness(problem, lastOK)) {
    case Freshness::Offline:
        return u"Offline"_s;
    case Freshness::Connecting:
        return u"Connecting"_s;
    case Freshness::Live:
        break;
    }
    if (clock.now() < upToDateUntil(*lastOK))
        return u"Up to date"_s;
    return u"Updated "_s + relativeTime(*lastOK, clock);
}

} // namespace vexal
