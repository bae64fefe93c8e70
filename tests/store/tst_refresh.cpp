#include "livestore.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace std::chrono_literals;

namespace {

const QString unreachable = u"Can't reach the Vexal server right now."_s;
const QString tryingAgain = u"Can't reach the Vexal server right now. Trying again…"_s;
const QString offline = u"This Mac is offline. Vexal will catch up when it's back."_s;
const QString refused = u"The server didn't take that. Try again in a moment."_s;
const QString expired = u"You're signed out. Sign in again."_s;

Event anEvent(qint64 id, const LiveStore &live)
{
    Event event;
    event.id = id;
    event.at = live.clock.clock().milliseconds() + 1000;
    event.by = u"bea@lanternhouse.example"_s;
    event.kind = u"comment"_s;
    event.text = u"Look"_s;
    return event;
}

} // namespace

Q_DECLARE_METATYPE(Answer)

/// The board, kept in step with the server.
class TestRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstRoundBringsTheBoardAndTheSelectedFile()
    {
        LiveStore live(aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s)}));
        live.store.resume();
        QVERIFY(live.store.signedIn());
        QTRY_VERIFY(live.sleep.asleep());
        QCOMPARE(live.store.board(), live.board);
        QCOMPARE(live.store.selection(), QSet{u"b"_s});
        QVERIFY(live.store.detail(u"b"_s));
        QVERIFY(!live.store.detail(u"a"_s));
        QCOMPARE(live.store.lastOK(), live.clock.now());
        QCOMPARE(live.store.problem(), std::nullopt);
        QCOMPARE(live.badge.shown, QList{1});
        QCOMPARE(live.toast(), u""_s);
        QStringList asked = live.asked();
        asked.sort();
        QCOMPARE(asked, (QStringList{u"GET /api/files/b"_s, u"GET /api/state"_s, u"GET /version.json"_s}));
        for (const Received &request : live.client.server.requests()) {
            QCOMPARE(request.header("Authorization"), "Bearer token");
            QCOMPARE(request.header("If-None-Match"), std::nullopt);
            QCOMPARE(request.body, "");
        }
    }

    void whatHasNotChangedIsNotSentAgain()
    {
        LiveStore live;
        live.begin();
        QSignalSpy boards(&live.store, &Store::boardChanged);
        QSignalSpy details(&live.store, &Store::detailsChanged);
        live.clock.moveOn(1min);
        live.round();
        QCOMPARE(live.asked(), (QStringList{u"GET /api/state"_s, u"GET /api/files/f"_s}));
        const auto requests = live.client.server.requests();
        QCOMPARE(requests[0].header("If-None-Match"), LiveStore::tagOf(encode(live.board)));
        QCOMPARE(requests[1].header("If-None-Match"), LiveStore::tagOf(encode(live.details[u"f"_s])));
        QCOMPARE(boards.size(), 0);
        QCOMPARE(details.size(), 0);
        QCOMPARE(live.store.lastOK(), live.clock.now());
    }

    void anUnchangedBoardEndsTheProblem()
    {
        LiveStore live;
        live.begin();
        live.client.server.goDown();
        live.round();
        QCOMPARE(live.store.problem(), tryingAgain);
        live.client.server.comeUp();
        live.clock.moveOn(1min);
        live.round();
        QCOMPARE(live.client.server.requests("GET", "/api/state").last().header("If-None-Match"),
                 LiveStore::tagOf(encode(live.board)));
        QCOMPARE(live.store.problem(), std::nullopt);
        QCOMPARE(live.store.lastOK(), live.clock.now());
    }

    void aNewBoardTakesTheOldOnesPlace()
    {
        LiveStore live;
        live.begin();
        live.board = aBoard({aFile(u"f"_s, u"reviewed"_s)}, 2);
        live.round();
        QCOMPARE(live.store.board(), live.board);
        QCOMPARE(live.badge.shown, (QList{1, 0}));
    }

    void aBoardWithoutATagIsAskedForWithoutOne()
    {
        LiveStore live;
        live.client.server.on("GET", "/api/state").answer(200, encode(live.board));
        live.begin();
        live.round();
        QCOMPARE(live.client.server.requests("GET", "/api/state").last().header("If-None-Match"), std::nullopt);
    }

    void aFailureKeepsTheLastGoodBoard_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("problem");
        const QByteArray board = encode(aBoard({}, 9));
        QTest::newRow("refused with words")
            << Answer(500, QJsonObject{{u"error"_s, u"Closed today."_s}}) << u"Closed today."_s;
        QTest::newRow("refused without") << Answer(502, "<html>") << refused;
        QTest::newRow("lost in the middle") << Answer(200, board).cutAfter(20) << offline;
        QTest::newRow("closed after the request") << Answer::closed() << offline;
        QTest::newRow("never answered") << Answer::never() << tryingAgain;
        QTest::newRow("no HTTP") << Answer::raw("garbage") << tryingAgain;
        QTest::newRow("no JSON") << Answer(200, "garbage") << unreachable;
        QTest::newRow("empty") << Answer(200) << unreachable;
        QTest::newRow("no board") << Answer(200, R"({"rev": 9})") << unreachable;
    }

    void aFailureKeepsTheLastGoodBoard()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, problem);
        LiveStore live;
        live.begin();
        const auto lastOK = live.store.lastOK();
        live.clock.moveOn(1min);
        bool wrong = true;
        live.client.server.on("GET", "/api/state").react([&](const Received &request) {
            return wrong ? answer : LiveStore::tagged(encode(live.board), request);
        });
        live.round();
        QCOMPARE(live.store.problem(), problem);
        QCOMPARE(live.store.board(), live.board);
        QCOMPARE(live.store.lastOK(), lastOK);
        QCOMPARE(live.badge.shown, QList{1});
        QCOMPARE(live.toast(), u""_s);
        QVERIFY(live.client.server.requests("GET", "/api/files/f").isEmpty());
        QVERIFY(live.store.signedIn());

        wrong = false;
        live.round();
        QCOMPARE(live.store.problem(), std::nullopt);
        QCOMPARE(live.client.server.requests("GET", "/api/state").last().header("If-None-Match"),
                 LiveStore::tagOf(encode(live.board)));
    }

    void unchangedIsNoAnswerToSomeoneWithoutABoard()
    {
        LiveStore live;
        live.client.server.on("GET", "/api/state").answer(304).react([&](const Received &request) {
            return LiveStore::tagged(encode(live.board), request);
        });
        live.store.resume();
        QTRY_VERIFY(live.sleep.asleep());
        QCOMPARE(live.store.board(), live.board);
        QCOMPARE(live.client.server.requests("GET", "/api/state").size(), 2);
    }

    void aServerThatInsistsIsAskedTwiceARound()
    {
        LiveStore live;
        live.client.server.on("GET", "/api/state").answer(304);
        live.store.resume();
        QTRY_VERIFY(live.sleep.asleep());
        QCOMPARE(live.client.server.requests("GET", "/api/state").size(), 2);
        QCOMPARE(live.store.problem(), unreachable);
        QVERIFY(!live.store.board());
    }

    void anOlderBoardThatArrivesLaterIsDroppedWithItsTag()
    {
        LiveStore live;
        live.begin();
        Gate gate;
        const BoardState older = aBoard({aFile(u"f"_s)}, 2);
        const BoardState newer = aBoard({aFile(u"f"_s, u"reviewed"_s)}, 3);
        live.client.server.on("GET", "/api/state")
            .answer(Answer(200, encode(older), {{"Etag", "\"older\""}}).heldBy(gate))
            .answer(200, encode(newer), {{"Etag", "\"newer\""}})
            .answer(304);
        bool firstEnded = false;
        live.store.refresh(holdUntil([&] { firstEnded = true; }));
        QTRY_COMPARE(live.client.server.requests("GET", "/api/state").size(), 1);
        live.store.refresh();
        QTRY_COMPARE(live.store.board(), newer);
        gate.open();
        QTRY_VERIFY(firstEnded);
        QCOMPARE(live.store.board(), newer);
        live.round();
        QCOMPARE(live.client.server.requests("GET", "/api/state").last().header("If-None-Match"), "\"newer\"");
    }

    void aNewerBoardThatWasAskedForEarlierIsTaken()
    {
        LiveStore live;
        live.begin();
        Gate gate;
        const BoardState newer = aBoard({aFile(u"f"_s, u"reviewed"_s)}, 3);
        live.client.server.on("GET", "/api/state")
            .answer(Answer(200, encode(newer)).heldBy(gate))
            .answer(200, encode(aBoard({aFile(u"f"_s)}, 2)));
        live.store.refresh();
        QTRY_COMPARE(live.client.server.requests("GET", "/api/state").size(), 1);
        live.store.refresh();
        QTRY_COMPARE(live.store.board()->rev, 2);
        gate.open();
        QTRY_COMPARE(live.store.board(), newer);
    }

    void aServerThatBeginsAnewIsFollowed()
    {
        LiveStore live(aBoard({aFile(u"f"_s)}, 40));
        live.begin();
        live.board = aBoard({aFile(u"f"_s, u"reviewed"_s)}, 1);
        live.round();
        QCOMPARE(live.store.board(), live.board);
    }

    void aRefusedCredentialSignsOut()
    {
        LiveStore live;
        live.begin();
        live.client.server.on("GET", "/api/state").answer(401, QJsonObject{{u"error"_s, u"Who?"_s}});
        live.sleep.wake();
        QTRY_VERIFY(!live.store.signedIn());
        QCOMPARE(live.toast(), expired);
        QVERIFY(!live.sleep.asleep());
        QCOMPARE(live.client.credentials.token(), u""_s);
        QCOMPARE(live.asked(), QStringList{u"GET /api/state"_s});
    }

    void newsAreTold()
    {
        LiveStore live;
        live.board.users = {aPerson(u"bea@lanternhouse.example"_s, u"Bea Moss"_s)};
        live.board.events = {anEvent(1, live)};
        live.begin();
        QCOMPARE(live.toast(), u""_s);
        live.board.events.append(anEvent(2, live));
        live.round();
        QCOMPARE(live.toast(), u"Bea Moss: Look"_s);
        QVERIFY(!live.store.toast()->undoLabel);
    }

    void whatWasToldIsNotToldAgain()
    {
        LiveStore live;
        live.board.events = {anEvent(40, live)};
        live.begin();
        live.board.events = {anEvent(3, live)};
        live.round();
        live.board.events = {anEvent(40, live)};
        live.round();
        QCOMPARE(live.toast(), u""_s);
        live.board.events = {anEvent(41, live)};
        live.round();
        QCOMPARE(live.toast(), u"bea@lanternhouse.example: Look"_s);
    }

    void someoneWhoLooksElsewhereHearsItFromTheDesktop()
    {
        LiveStore live;
        live.board.events = {anEvent(4, live)};
        live.begin();
        QCOMPARE(live.notifications.told, QStringList());
        Event event = anEvent(5, live);
        event.file_id = u"f"_s;
        live.board.events.prepend(event);
        live.round();
        QCOMPARE(live.notifications.told, QStringList{u"bea@lanternhouse.example: Look > f"_s});
        QCOMPARE(live.toast(), u"bea@lanternhouse.example: Look"_s);
    }

    void someoneWhoLooksAtTheWindowHearsItThereAlone()
    {
        LiveStore live;
        live.board.events = {anEvent(4, live)};
        live.windows.isSeen = true;
        live.begin();
        live.board.events.prepend(anEvent(5, live));
        live.round();
        QCOMPARE(live.toast(), u"bea@lanternhouse.example: Look"_s);
        QCOMPARE(live.notifications.told, QStringList());
    }

    void whatWasToldGoesWithTheSession()
    {
        LiveStore live;
        live.board.events = {anEvent(4, live)};
        live.begin();
        live.board.events.prepend(anEvent(5, live));
        live.round();
        QCOMPARE(live.notifications.told.size(), 1);
        live.store.signOut();
        QCOMPARE(live.notifications.told, QStringList());
    }

    void severalSelectedFilesAreNotFetched()
    {
        LiveStore live(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        live.begin();
        live.store.selectFile(u"b"_s, true);
        live.round();
        QCOMPARE(live.asked(), QStringList{u"GET /api/state"_s});
    }

    void aRefreshThatWasAskedForSaysHowItEnded()
    {
        LiveStore live;
        live.begin();
        live.store.refreshNow();
        QVERIFY(live.store.refreshing());
        live.store.refreshNow();
        QTRY_VERIFY(!live.store.refreshing());
        QCOMPARE(live.toast(), u"Up to date."_s);
        QCOMPARE(live.asked(), (QStringList{u"GET /api/state"_s, u"GET /api/files/f"_s}));

        live.client.server.goDown();
        live.store.refreshNow();
        QTRY_VERIFY(!live.store.refreshing());
        QCOMPARE(live.toast(), tryingAgain);
    }

    void aRefreshThatIsRefusedSaysSoLast()
    {
        LiveStore live;
        live.begin();
        live.client.server.on("GET", "/api/state").answer(401);
        live.store.refreshNow();
        QTRY_VERIFY(!live.store.signedIn());
        QCOMPARE(live.toast(), expired);
        QVERIFY(!live.store.refreshing());
        QTest::qWait(0);
        QCOMPARE(live.toast(), expired);
    }

    void aNewerVersionIsOffered_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<bool>("offered");
        const auto build = [](int number) {
            return Answer(
                200, QJsonObject{{u"version"_s, u"2.0"_s}, {u"build"_s, number}, {u"url"_s, u"https://x.example"_s}});
        };
        QTest::newRow("newer") << build(8) << true;
        QTest::newRow("the same") << build(7) << false;
        QTest::newRow("older") << build(6) << false;
        QTest::newRow("refused") << Answer(500) << false;
        QTest::newRow("not for us") << Answer(401) << false;
        QTest::newRow("lost") << Answer::closed() << false;
        QTest::newRow("garbage") << Answer(200, "garbage") << false;
    }

    void aNewerVersionIsOffered()
    {
        QFETCH(Answer, answer);
        QFETCH(bool, offered);
        LiveStore live;
        live.begin();
        live.client.server.on("GET", "/version.json").answer(answer);
        live.store.checkVersion();
        QTRY_VERIFY(!live.client.server.requests("GET", "/version.json").isEmpty());
        live.round(); // By then the answer has been heard.
        QCOMPARE(live.store.update().has_value(), offered);
        QCOMPARE(live.toast(), u""_s);
        QCOMPARE(live.store.problem(), std::nullopt);
        QVERIFY(live.store.signedIn());
        if (offered)
            QCOMPARE(live.store.update()->version, u"2.0"_s);
        live.store.dismissUpdate();
        QVERIFY(!live.store.update());
    }
};

QTEST_GUILESS_MAIN(TestRefresh)
#include "tst_refresh.moc"
