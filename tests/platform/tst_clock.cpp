#include "clock.h"

#include <QTest>

#include <limits>

using namespace vexal;

class TestClocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSystemClockTellsTheTimeOfTheComputer()
    {
        const Clock clock = systemClock();
        const QDateTime before = QDateTime::currentDateTimeUtc();
        const QDateTime told = clock.now();
        QVERIFY(before <= told);
        QVERIFY(told <= QDateTime::currentDateTimeUtc());
        QVERIFY(clock.zone.isValid());
        QCOMPARE(clock.locale, QLocale::system());
    }

    void aStandingClockStands()
    {
        const QDateTime moment({2025, 11, 18}, {15, 4}, Qt::UTC);
        const Clock clock = standingClock(moment);
        QTRY_VERIFY(QDateTime::currentDateTimeUtc() > m_begun.addMSecs(20));
        QCOMPARE(clock.now(), moment);
        QCOMPARE(clock.zone, systemClock().zone);
        QCOMPARE(clock.locale, QLocale::system());
    }

    void aClockFromAMomentRunsOnFromThere()
    {
        const QDateTime moment({1999, 12, 31}, {23, 59, 59}, Qt::UTC);
        const Clock clock = clockFrom(moment);
        QVERIFY(clock.now() >= moment);
        QVERIFY(clock.now() < moment.addSecs(60));
        QTRY_VERIFY(clock.now() >= moment.addMSecs(20));
    }

    void copiesOfAClockRunTogether()
    {
        const QDateTime moment({2025, 11, 18}, {15, 4}, Qt::UTC);
        const Clock clock = clockFrom(moment);
        QTRY_VERIFY(clock.now() >= moment.addMSecs(20));
        const Clock copy = clock;
        QVERIFY(copy.now() >= moment.addMSecs(20));
    }

    void millisecondsAndMomentsAreEachOthersInverse()
    {
        const QDateTime moment({2025, 11, 18}, {15, 4, 5, 678}, Qt::UTC);
        QCOMPARE(standingClock(moment).milliseconds(), 1763478245678.0);
        QCOMPARE(momentOf(1763478245678.0), moment);
        QCOMPARE(momentOf(1763478245678.9), moment);
        QCOMPARE(momentOf(-1000), QDateTime({1969, 12, 31}, {23, 59, 59}, Qt::UTC));
    }

    void aTimeThatNoCalendarReadsIsBroughtIntoOne()
    {
        constexpr double huge = std::numeric_limits<double>::max();
        QCOMPARE(momentOf(huge), QDateTime({9999, 12, 31}, {23, 59, 59, 999}, Qt::UTC));
        QCOMPARE(momentOf(-huge), QDateTime({1, 1, 1}, {0, 0}, Qt::UTC));
        QVERIFY(momentOf(std::numeric_limits<double>::quiet_NaN()).isValid());
        QVERIFY(momentOf(huge).toTimeZone(QTimeZone("America/New_York")).isValid());
        QVERIFY(momentOf(-huge).toTimeZone(QTimeZone("Europe/Berlin")).isValid());
    }

private:
    const QDateTime m_begun = QDateTime::currentDateTimeUtc();
};

QTEST_GUILESS_MAIN(TestClocks)
#include "tst_clock.moc"
