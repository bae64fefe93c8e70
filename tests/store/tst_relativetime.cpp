#include "relativetime.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vexal;

namespace {

const QLocale british(QLocale::English, QLocale::UnitedKingdom);
const QLocale american(QLocale::English, QLocale::UnitedStates);
const QTimeZone utc = QTimeZone::utc();
const QTimeZone berlin("Europe/Berlin");
const QTimeZone newYork("America/New_York");

Clock clockAt(const QDateTime &now, const QTimeZone &zone = utc, const QLocale &locale = british)
{
    return {[now] { return now; }, zone, locale};
}

QDateTime at(const QString &iso, const QTimeZone &zone = utc)
{
    const QDateTime written = QDateTime::fromString(iso, Qt::ISODateWithMs);
    return {written.date(), written.time(), zone};
}

const QDateTime tuesdayAfternoon = at(u"2025-11-18T15:04:30"_s);

QString toldAfter(std::chrono::milliseconds ago, const QDateTime &now = tuesdayAfternoon)
{
    return relativeTime(now.addMSecs(-ago.count()), clockAt(now));
}

} // namespace

class TestRelativeTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zonesOfTheTestsAreKnown() { QVERIFY(berlin.isValid() && newYork.isValid()); }

    void lessThanFiftySecondsAgoIsJustNow()
    {
        QCOMPARE(toldAfter(0s), u"just now"_s);
        QCOMPARE(toldAfter(49s), u"just now"_s);
        QCOMPARE(toldAfter(49'999ms), u"just now"_s);
        QCOMPARE(toldAfter(50s), u"0 min ago"_s);
    }

    void whatIsToComeIsJustNow()
    {
        QCOMPARE(toldAfter(-1ms), u"just now"_s);
        QCOMPARE(toldAfter(-1h), u"just now"_s);
        QCOMPARE(toldAfter(-24h * 400), u"just now"_s);
    }

    void minutesAreTruncated()
    {
        QCOMPARE(toldAfter(59'999ms), u"0 min ago"_s);
        QCOMPARE(toldAfter(60s), u"1 min ago"_s);
        QCOMPARE(toldAfter(119'999ms), u"1 min ago"_s);
        QCOMPARE(toldAfter(2min), u"2 min ago"_s);
        QCOMPARE(toldAfter(59min), u"59 min ago"_s);
    }

    void minutesEndAtOneHour()
    {
        QCOMPARE(toldAfter(1h - 1ms), u"59 min ago"_s);
        QCOMPARE(toldAfter(1h), u"1 hr ago"_s);
    }

    void hoursAreTruncated()
    {
        QCOMPARE(toldAfter(2h - 1ms), u"1 hr ago"_s);
        QCOMPARE(toldAfter(2h), u"2 hr ago"_s);
        QCOMPARE(toldAfter(3h), u"3 hr ago"_s);
    }

    void minutesCountOnAcrossMidnight()
    {
        const QDateTime now = at(u"2025-11-18T00:30:00"_s);
        QCOMPARE(toldAfter(59min, now), u"59 min ago"_s);
        QCOMPARE(toldAfter(1h, now), u"Yesterday 23:30"_s);
    }

    void hoursEndAtMidnight()
    {
        QCOMPARE(relativeTime(at(u"2025-11-18T00:00:00"_s), clockAt(tuesdayAfternoon)), u"15 hr ago"_s);
        QCOMPARE(relativeTime(at(u"2025-11-17T23:59:59.999"_s), clockAt(tuesdayAfternoon)), u"Yesterday 23:59"_s);
    }

    void yesterdayBeginsAtItsMidnight()
    {
        QCOMPARE(relativeTime(at(u"2025-11-17T00:00:00"_s), clockAt(tuesdayAfternoon)), u"Yesterday 00:00"_s);
        QCOMPARE(relativeTime(at(u"2025-11-16T23:59:59.999"_s), clockAt(tuesdayAfternoon)), u"Sunday 23:59"_s);
    }

    void weekdaysEndAtSixDays()
    {
        QCOMPARE(toldAfter(24h * 6 - 1ms), u"Wednesday 15:04"_s);
        QCOMPARE(toldAfter(24h * 6), u"12 Nov 15:04"_s);
        QCOMPARE(toldAfter(24h * 365), u"18 Nov 15:04"_s);
    }

    void yesterdayAcrossTheEndOfAYear()
    {
        const Clock clock = clockAt(at(u"2026-01-01T08:00:00"_s));
        QCOMPARE(relativeTime(at(u"2025-12-31T20:15:00"_s), clock), u"Yesterday 20:15"_s);
        QCOMPARE(relativeTime(at(u"2025-12-20T09:05:00"_s), clock), u"20 Dec 09:05"_s);
    }

    void midnightIsThatOfTheZone()
    {
        const QDateTime now = at(u"2025-11-18T02:00:00"_s);
        const QDateTime then = at(u"2025-11-17T23:30:00"_s);
        QCOMPARE(relativeTime(then, clockAt(now, utc)), u"Yesterday 23:30"_s);
        QCOMPARE(relativeTime(then, clockAt(now, berlin)), u"2 hr ago"_s);
        QCOMPARE(relativeTime(then, clockAt(now, newYork)), u"2 hr ago"_s);
    }

    void theZoneInWhichAMomentIsGivenDoesNotMatter()
    {
        const Clock clock = clockAt(tuesdayAfternoon, berlin);
        const QDateTime then = at(u"2025-11-17T09:00:00"_s, newYork);
        QCOMPARE(relativeTime(then, clock), u"Yesterday 15:00"_s);
        QCOMPARE(relativeTime(then.toUTC(), clock), u"Yesterday 15:00"_s);
    }

    void anHourThatTheClocksSkipIsNotCounted()
    {
        const Clock inBerlin = clockAt(at(u"2025-03-30T12:00:00"_s, berlin), berlin);
        QCOMPARE(relativeTime(at(u"2025-03-30T01:59:00"_s, berlin), inBerlin), u"9 hr ago"_s);
        QCOMPARE(relativeTime(at(u"2025-03-30T03:00:00"_s, berlin), inBerlin), u"9 hr ago"_s);
        const Clock inNewYork = clockAt(at(u"2025-03-09T12:00:00"_s, newYork), newYork);
        QCOMPARE(relativeTime(at(u"2025-03-09T00:00:00"_s, newYork), inNewYork), u"11 hr ago"_s);
    }

    void anHourThatTheClocksRepeatIsCounted()
    {
        const Clock inBerlin = clockAt(at(u"2025-10-26T23:30:00"_s, berlin), berlin);
        QCOMPARE(relativeTime(at(u"2025-10-26T00:15:00"_s, berlin), inBerlin), u"24 hr ago"_s);
        const Clock inNewYork = clockAt(at(u"2025-11-02T12:00:00"_s, newYork), newYork);
        QCOMPARE(relativeTime(at(u"2025-11-02T00:00:00"_s, newYork), inNewYork), u"13 hr ago"_s);
    }

    void bothHalvesOfARepeatedHourAreKept()
    {
        const Clock clock = clockAt(at(u"2025-10-26T01:10:00"_s), berlin);
        QCOMPARE(relativeTime(at(u"2025-10-26T00:15:00"_s), clock), u"55 min ago"_s);
        QCOMPARE(relativeTime(at(u"2025-10-26T00:05:00"_s), clock), u"1 hr ago"_s);
    }

    void yesterdayIsADayOfTheCalendarAlsoWhenItIsLongerOrShorter()
    {
        const Clock afterTheLongDay = clockAt(at(u"2025-10-27T23:59:00"_s, berlin), berlin);
        QCOMPARE(relativeTime(at(u"2025-10-26T00:00:00"_s, berlin), afterTheLongDay), u"Yesterday 00:00"_s);
        QCOMPARE(relativeTime(at(u"2025-10-25T23:59:00"_s, berlin), afterTheLongDay), u"Saturday 23:59"_s);
        const Clock afterTheShortDay = clockAt(at(u"2025-03-10T00:00:00"_s, newYork), newYork);
        QCOMPARE(relativeTime(at(u"2025-03-09T00:00:00"_s, newYork), afterTheShortDay), u"Yesterday 00:00"_s);
        QCOMPARE(relativeTime(at(u"2025-03-08T23:59:00"_s, newYork), afterTheShortDay), u"Saturday 23:59"_s);
    }

    void sixDaysAreSixTimesTwentyFourHoursAcrossAChangeOfTheClocks()
    {
        const Clock clock = clockAt(at(u"2025-10-30T12:00:00"_s, berlin), berlin);
        QCOMPARE(relativeTime(at(u"2025-10-24T13:00:01"_s, berlin), clock), u"Friday 13:00"_s);
        QCOMPARE(relativeTime(at(u"2025-10-24T13:00:00"_s, berlin), clock), u"24 Oct 13:00"_s);
    }

    void timesOfDayFollowTheClocksOfTheirOwnDay()
    {
        const Clock clock = clockAt(at(u"2025-04-01T12:00:00"_s, berlin), berlin);
        QCOMPARE(relativeTime(at(u"2025-03-29T11:00:00"_s), clock), u"Saturday 12:00"_s);
        QCOMPARE(relativeTime(at(u"2025-03-30T11:00:00"_s), clock), u"Sunday 13:00"_s);
    }

    void twelveHoursAndTheMonthFirstForAnAmerican()
    {
        const Clock clock = clockAt(tuesdayAfternoon, utc, american);
        QCOMPARE(relativeTime(at(u"2025-11-17T15:04:00"_s), clock), u"Yesterday 3:04 PM"_s);
        QCOMPARE(relativeTime(at(u"2025-11-16T00:30:00"_s), clock), u"Sunday 12:30 AM"_s);
        QCOMPARE(relativeTime(at(u"2025-11-02T15:04:00"_s), clock), u"Nov 2 3:04 PM"_s);
    }

    void wordsAreEnglishInEveryLocale()
    {
        const QLocale german(QLocale::German, QLocale::Germany);
        const Clock clock = clockAt(tuesdayAfternoon, utc, german);
        QCOMPARE(relativeTime(at(u"2025-11-16T15:04:00"_s), clock), u"Sunday 15:04"_s);
        QCOMPARE(relativeTime(at(u"2025-10-02T15:04:00"_s), clock), u"2 Oct 15:04"_s);
    }

    void timesOfDay_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("morning");
        QTest::addColumn<QString>("afternoon");
        QTest::newRow("no locale: British") << u"C"_s << u"09:04"_s << u"15:04"_s;
        QTest::newRow("British") << u"en_GB"_s << u"09:04"_s << u"15:04"_s;
        QTest::newRow("American") << u"en_US"_s << u"9:04 AM"_s << u"3:04 PM"_s;
        QTest::newRow("Spanish: one digit") << u"es_ES"_s << u"9:04"_s << u"15:04"_s;
        QTest::newRow("Finnish: a full stop") << u"fi_FI"_s << u"9.04"_s << u"15.04"_s;
        QTest::newRow("Canadian French: a quoted letter h") << u"fr_CA"_s << u"09:04"_s << u"15:04"_s;
        QTest::newRow("Bulgarian: a quoted word") << u"bg_BG"_s << u"9:04"_s << u"15:04"_s;
        QTest::newRow("Korean: its own words first") << u"ko_KR"_s << u"9:04 AM"_s << u"3:04 PM"_s;
        QTest::newRow("Taiwanese: no AM in the pattern") << u"zh_TW"_s << u"9:04 AM"_s << u"3:04 PM"_s;
        QTest::newRow("Egyptian: its own digits") << u"ar_EG"_s << u"9:04 AM"_s << u"3:04 PM"_s;
    }

    void timesOfDay()
    {
        QFETCH(QString, locale);
        QTEST(shortTime({9, 4, 59}, QLocale(locale)), "morning");
        QTEST(shortTime({15, 4, 59}, QLocale(locale)), "afternoon");
    }

    void noonAndMidnightOfTwelveHours()
    {
        QCOMPARE(shortTime({0, 0}, american), u"12:00 AM"_s);
        QCOMPARE(shortTime({11, 59}, american), u"11:59 AM"_s);
        QCOMPARE(shortTime({12, 0}, american), u"12:00 PM"_s);
        QCOMPARE(shortTime({23, 59}, american), u"11:59 PM"_s);
    }

    void daysAndMonths_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("told");
        QTest::newRow("no locale: British") << u"C"_s << u"8 Nov"_s;
        QTest::newRow("British") << u"en_GB"_s << u"8 Nov"_s;
        QTest::newRow("American") << u"en_US"_s << u"Nov 8"_s;
        QTest::newRow("German") << u"de_DE"_s << u"8 Nov"_s;
        QTest::newRow("Japanese: year first") << u"ja_JP"_s << u"Nov 8"_s;
        QTest::newRow("Bulgarian: a quoted word") << u"bg_BG"_s << u"8 Nov"_s;
    }

    void daysAndMonths()
    {
        QFETCH(QString, locale);
        QTEST(dayMonth({2025, 11, 8}, QLocale(locale)), "told");
    }
};

QTEST_GUILESS_MAIN(TestRelativeTime)
#include "tst_relativetime.moc"
