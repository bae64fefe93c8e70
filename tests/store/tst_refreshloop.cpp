#include "livestore.h"
#include "refreshloop.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace std::chrono_literals;

/// How often the server is looked at. No test here waits for a pause: the test itself wakes the sleeper.
class TestRefreshLoop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePaceFollowsWhoLooksAndWhoWorks()
    {
        QCOMPARE(pollPause(false, false), 45s);
        QCOMPARE(pollPause(false, true), 5s);
        QCOMPARE(pollPause(true, false), 3s);
        QCOMPARE(pollPause(true, true), 3s);
    }

    void eachRoundChoosesItsPause()
    {
        LiveStore live;
        live.begin();
        live.windows.isSeen = true;
        live.round();
        live.board.sync = aJob(u"sync"_s, u"queued"_s);
        live.round();
        live.windows.isSeen = false;
        live.round();
        live.board.sync->status = u"done"_s;
        live.board.jobs = {aJob(u"report"_s, u"running"_s)};
        live.round();
        live.board.jobs = {aJob(u"report"_s, u"stuck"_s)};
        live.round();
        QCOMPARE(live.sleep.pauses, (QList<std::chrono::milliseconds>{45s, 5s, 3s, 3s, 3s, 45s}));
    }

    void aFailingServerIsAskedAtTheSamePace()
    {
        LiveStore live;
        live.windows.isSeen = true;
        live.begin();
        live.client.server.goDown();
        for (int i = 0; i < 5; ++i)
            live.round();
        QCOMPARE(live.sleep.pauses, QList<std::chrono::milliseconds>(6, 5s));
    }

    void theNextRoundWaitsForTheDetail()
    {
        LiveStore live;
        Gate gate;
        live.client.server.on("GET", "/api/files/f").answer(Answer(200, encode(aDetail(u"f"_s, 3))).heldBy(gate));
        live.store.resume();
        QTRY_COMPARE(live.client.server.requests("GET", "/api/files/f").size(), 1);
        QVERIFY(live.store.board());
        QVERIFY(!live.sleep.asleep());
        gate.open();
        QTRY_VERIFY(live.sleep.asleep());
        QVERIFY(live.store.detail(u"f"_s));
    }

    void aFileSwitchedAwayFromDoesNotHoldTheLoopUp()
    {
        LiveStore live(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        live.client.server.on("GET", "/api/files/a").answer(Answer::never());
        live.store.resume();
        QTRY_COMPARE(live.client.server.requests("GET", "/api/files/a").size(), 1);
        live.store.selectFile(u"b"_s);
        QVERIFY(live.sleep.asleep());
        QVERIFY(live.store.detailProblems().isEmpty());
        QCOMPARE(live.toast(), u""_s);
    }

    void startingTwiceIsStartingOnce()
    {
        LiveStore live;
        live.begin();
        live.store.start();
        live.round();
        QCOMPARE(live.asked(), (QStringList{u"GET /api/state"_s, u"GET /api/files/f"_s}));
    }

    void aStoppedLoopSleepsNoMore()
    {
        LiveStore live;
        live.begin();
        live.store.stop();
        QVERIFY(!live.sleep.asleep());
        live.sleep.wake();
        QCOMPARE(live.asked(), QStringList());
        live.store.start();
        QTRY_VERIFY(live.sleep.asleep());
    }

    void aLoopStoppedInTheMiddleOfARoundEndsThere()
    {
        LiveStore live;
        live.begin();
        live.sleep.wake();
        live.store.stop();
        QTRY_COMPARE(live.asked().size(), 2);
        live.store.refreshNow(); // A round trip later nobody sleeps, either.
        QTRY_VERIFY(!live.store.refreshing());
        QVERIFY(!live.sleep.asleep());
    }

    void aStoreMayGoInTheMiddleOfARound()
    {
        LiveStore live;
        SaidSleep sleep;
        {
            Store store(live.clock.clock(), live.surroundings(sleep));
            store.resume();
            QTRY_VERIFY(!live.client.server.requests().isEmpty());
        }
        QVERIFY(!sleep.asleep());
    }

    void nobodySignedInIsNoLoop()
    {
        LiveStore live;
        live.client.credentials.forget();
        live.store.resume();
        live.store.start();
        live.store.refresh();
        QVERIFY(!live.store.signedIn());
        QTest::qWait(0);
        QCOMPARE(live.asked(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestRefreshLoop)
#include "tst_refreshloop.moc"
