#include "clock.h"

#include <QElapsedTimer>

namespace vexal {

namespace {

constexpr double firstMoment = -62'135'596'800'000; // 0001-01-01 00:00 UTC
constexpr double lastMoment = 253'402'300'799'999;  // 9999-12-31 23:59:59.999 UTC

Clock personsClock(std::function<QDateTime()> now)
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    return {std::move(now), zone.isValid() ? zone : QTimeZone::utc(), QLocale::system()};
}

} // namespace

Clock systemClock()
{
    return personsClock([] { return QDateTime::currentDateTimeUtc(); });
}

Clock standingClock(const QDateTime &moment)
{
    return personsClock([moment] { return moment; });
}

Clock clockFrom(const QDateTime &moment)
{
    QElapsedTimer since;
    since.start();
    return personsClock([moment, since] { return moment.addMSecs(since.elapsed()); });
}

QDateTime momentOf(double milliseconds)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(qBound(firstMoment, milliseconds, lastMoment)), Qt::UTC);
}

} // namespace vexal
