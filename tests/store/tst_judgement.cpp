#include "livestore.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace std::chrono_literals;

namespace {

const QString ada = u"ada@lanternhouse.example"_s;
const QString tryingAgain = u"Can't reach the Vexal server right now. Trying again…"_s;

} // namespace

/// What people make of files and findings: shown at once, told, taken back.
class TestJudgement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(aBoard({aFile(u"f"_s, u"in_review"_s), aFile(u"g"_s)}));
        m_live->details.insert(u"f"_s,
                               aDetail(u"f"_s, 3, {aFinding(u"x"_s, 0, u"low"_s), aFinding(u"y"_s, 0, u"low"_s)}));
        m_live->client.server.on("POST", "/api/findings/x").react([this](const Received &request) {
            finding(m_live->details[u"f"_s], 0).state = request.json()[u"state"_s].toString();
            return Answer(200);
        });
        m_live->client.server.on("POST", "/api/files/f/status").react([this](const Received &request) {
            m_live->board.files[0].status = request.json()[u"status"_s].toString();
            m_live->board.rev += 1;
            return Answer(200);
        });
        m_live->begin();
    }
    void cleanup() { m_live.reset(); }

    void aStateShowsAtOnce()
    {
        QSignalSpy changes(&m_live->store, &Store::detailsChanged);
        m_live->clock.moveOn(1min);
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QCOMPARE(held().state, u"fine"_s);
        QCOMPARE(held().state_by, ada);
        QCOMPARE(held().state_at, m_live->clock.clock().milliseconds());
        QCOMPARE(changes.size(), 1);
        QCOMPARE(m_live->toast(), u""_s);
    }

    void aStateIsTakenFromTheServerAfterwards()
    {
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        waitForEnd();
        QCOMPARE(held(), finding(m_live->details[u"f"_s], 0));
        const auto fetched = m_live->client.server.requests("GET", "/api/files/f");
        QCOMPARE(fetched.size(), 1);
        QCOMPARE(fetched.first().header("If-None-Match"), std::nullopt);
    }

    void aStateCanBeTakenBack()
    {
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QTRY_COMPARE(m_live->toast(), u"Marked fine."_s);
        QCOMPARE(m_live->store.toast()->undoLabel, u"Undo"_s);
        m_live->store.undoToast();
        QCOMPARE(held().state, u"open"_s);
        QTRY_COMPARE(m_live->toast(), u"Reopened."_s);
        waitForEnd();
        QCOMPARE(held().state, u"open"_s);
        QCOMPARE(bodies("/api/findings/x"), (QByteArrayList{R"({"state":"fine"})", R"({"state":"open"})"}));
    }

    void whatWasTakenBackCanBeTakenBack()
    {
        m_live->store.setFindingState(u"x"_s, u"issue"_s);
        waitForEnd();
        m_live->store.undoToast();
        waitForEnd();
        m_live->store.undoToast();
        waitForEnd();
        QCOMPARE(held().state, u"issue"_s);
        QCOMPARE(m_live->toast(), u"Marked a real issue."_s);
    }

    void theFileIsFetchedAgainWhateverBecomesOfTheBoard()
    {
        m_live->client.server.on("GET", "/api/state").answer(500);
        m_live->client.server.on("POST", "/api/findings/x").answer(200);
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        m_live->details[u"f"_s].findings[0].state_by = u"the server's word"_s;
        QTRY_COMPARE(held(), finding(m_live->details[u"f"_s], 0));
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").size(), 1);
    }

    void aStateThatIsNotTakenComesBackFromTheServer()
    {
        m_live->client.server.on("POST", "/api/findings/x").answer(400, QJsonObject{{u"error"_s, u"No."_s}});
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QCOMPARE(held().state, u"fine"_s);
        waitForEnd();
        QCOMPARE(held(), finding(m_live->details[u"f"_s], 0));
        QCOMPARE(m_live->toast(), u"No."_s);
        QCOMPARE(m_live->asked(), (QStringList{u"POST /api/findings/x"_s, u"GET /api/files/f"_s}));
        QCOMPARE(m_live->client.server.requests().last().header("If-None-Match"), std::nullopt);
    }

    void aStateWithoutAServerComesBackWithIt()
    {
        m_live->client.server.goDown();
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QCOMPARE(held().state, u"fine"_s);
        waitForEnd();
        QVERIFY(m_live->store.toast());
        m_live->client.server.comeUp();
        m_live->round();
        QCOMPARE(held().state, u"open"_s);
    }

    void aDetailFromBeforeTheChangeDoesNotUndoIt()
    {
        Gate detail;
        Gate post;
        m_live->client.server.on("GET", "/api/files/f")
            .answer(Answer(200, encode(m_live->details[u"f"_s]), {{"Etag", "\"before\""}}).heldBy(detail))
            .react([this](const Received &request) {
                return LiveStore::tagged(encode(m_live->details[u"f"_s]), request);
            });
        m_live->client.server.on("POST", "/api/findings/x").answer(Answer(200).heldBy(post));
        m_live->store.loadDetail(u"f"_s);
        QTRY_COMPARE(m_live->client.server.requests("GET", "/api/files/f").size(), 1);
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QSignalSpy changes(&m_live->store, &Store::detailsChanged);
        detail.open();
        m_live->store.refreshNow();
        finding(m_live->details[u"f"_s], 0).state = u"fine"_s;
        QTRY_VERIFY(!m_live->store.refreshing());
        QCOMPARE(held().state, u"fine"_s);
        post.open();
        waitForEnd();
        QCOMPARE(held(), finding(m_live->details[u"f"_s], 0));
        QVERIFY(m_live->client.server.requests().last().header("If-None-Match") != "\"before\"");
    }

    void aFileThatIsNoLongerSelectedIsFetchedAllTheSame()
    {
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        m_live->store.selectFile(u"g"_s);
        waitForEnd();
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").size(), 1);
        QCOMPARE(held(), finding(m_live->details[u"f"_s], 0));
    }

    void aFileSwitchedAwayFromDoesNotHoldTheKey()
    {
        m_live->client.server.on("GET", "/api/files/f").answer(Answer::never());
        QList<QSet<QString>> busy;
        QObject::connect(&m_live->store, &Store::busyChanged, this, [&] { busy.append(m_live->store.busy()); });
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QTRY_COMPARE(m_live->client.server.requests("GET", "/api/files/f").size(), 1);
        QVERIFY(m_live->store.isBusy(u"x"_s));
        m_live->store.selectFile(u"g"_s);
        QCOMPARE(busy, (QList<QSet<QString>>{{u"x"_s}, {}}));
        QCOMPARE(m_live->toast(), u"Marked fine."_s);
    }

    void theStateAndTheKeyShowTogether()
    {
        bool whole = false;
        QObject::connect(
            &m_live->store, &Store::detailsChanged, this, [&] { whole = m_live->store.isBusy(u"x"_s); },
            Qt::SingleShotConnection);
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        QVERIFY(whole);
    }

    void twoFindingsAreJudgedAtOnce()
    {
        m_live->client.server.on("POST", "/api/findings/y").react([this](const Received &) {
            finding(m_live->details[u"f"_s], 1).state = u"issue"_s;
            return Answer(200);
        });
        m_live->store.setFindingState(u"x"_s, u"fine"_s);
        m_live->store.setFindingState(u"y"_s, u"issue"_s);
        QCOMPARE(m_live->store.busy(), (QSet{u"x"_s, u"y"_s}));
        waitForEnd();
        QCOMPARE(m_live->store.detail(u"f"_s)->findings, m_live->details[u"f"_s].findings);
    }

    void aFindingThatIsNotKnownIsNotJudged()
    {
        m_live->store.setFindingState(u"gone"_s, u"fine"_s);
        QVERIFY(m_live->store.busy().isEmpty());
    }

    void aStatusShowsAtOnce()
    {
        QSignalSpy changes(&m_live->store, &Store::boardChanged);
        m_live->clock.moveOn(1min);
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        QCOMPARE(m_live->store.findFile(u"f"_s)->status, u"reviewed"_s);
        QCOMPARE(m_live->store.findFile(u"f"_s)->status_by, ada);
        QCOMPARE(m_live->store.findFile(u"f"_s)->status_at, m_live->clock.clock().milliseconds());
        QCOMPARE(m_live->store.findFile(u"g"_s)->status, u"new"_s);
        QCOMPARE(changes.size(), 1);
    }

    void aStatusChangesTheFingerprintOfItsFileAlone()
    {
        const QList<size_t> before = m_live->store.fileFingerprints();
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        const QList<size_t> &after = m_live->store.fileFingerprints();
        const QList<FileItem> &files = m_live->store.board()->files;
        QCOMPARE(after.size(), files.size());
        for (qsizetype i = 0; i < files.size(); ++i)
            QCOMPARE(after[i] != before[i], files[i].id == "f"_L1);
    }

    void aStatusCanBeTakenBack()
    {
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        QTRY_COMPARE(m_live->toast(), u"Marked reviewed."_s);
        QCOMPARE(m_live->store.toast()->undoLabel, u"Undo"_s);
        m_live->store.undoToast();
        QCOMPARE(m_live->store.findFile(u"f"_s)->status, u"in_review"_s);
        QTRY_COMPARE(m_live->toast(), u"Back in review."_s);
        waitForEnd();
        QCOMPARE(m_live->store.board(), m_live->board);
        QCOMPARE(bodies("/api/files/f/status"),
                 (QByteArrayList{R"({"status":"reviewed"})", R"({"status":"in_review"})"}));
    }

    void aStatusThatIsNotTakenComesBackFromTheServer()
    {
        m_live->client.server.on("POST", "/api/files/f/status").answer(500);
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        waitForEnd();
        QCOMPARE(m_live->store.board(), m_live->board);
        QCOMPARE(m_live->client.server.requests("GET", "/api/state").size(), 1);
        QCOMPARE(m_live->client.server.requests("GET", "/api/state").first().header("If-None-Match"), std::nullopt);
    }

    void aStatusWithoutAServerComesBackWithIt()
    {
        m_live->client.server.goDown();
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        waitForEnd();
        QCOMPARE(m_live->store.findFile(u"f"_s)->status, u"reviewed"_s);
        m_live->client.server.comeUp();
        m_live->round();
        QCOMPARE(m_live->store.board(), m_live->board);
    }

    void aBoardFromBeforeTheChangeDoesNotUndoIt()
    {
        Gate state;
        Gate post;
        m_live->client.server.on("GET", "/api/state")
            .answer(Answer(200, encode(m_live->board), {{"Etag", "\"before\""}}).heldBy(state))
            .react([this](const Received &request) { return LiveStore::tagged(encode(m_live->board), request); });
        m_live->client.server.on("POST", "/api/files/f/status").answer(Answer(200).heldBy(post));
        bool refreshed = false;
        m_live->store.refresh(holdUntil([&] { refreshed = true; }));
        QTRY_COMPARE(m_live->client.server.requests("GET", "/api/state").size(), 1);
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        state.open();
        QTRY_VERIFY(refreshed);
        QCOMPARE(m_live->store.findFile(u"f"_s)->status, u"reviewed"_s);
        post.open();
        waitForEnd();
        QCOMPARE(m_live->store.board(), m_live->board);
        QCOMPARE(m_live->client.server.requests("GET", "/api/state").last().header("If-None-Match"), std::nullopt);
    }

    void aBoardThatIsAskedForWhileTheChangeIsOnItsWayDoesNotUndoIt()
    {
        Gate post;
        m_live->client.server.on("POST", "/api/files/f/status").answer(Answer(200).heldBy(post));
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        QTRY_COMPARE(m_live->client.server.requests("POST", "/api/files/f/status").size(), 1);
        bool refreshed = false;
        m_live->store.refresh(holdUntil([&] { refreshed = true; }));
        QTRY_VERIFY(refreshed);
        QCOMPARE(m_live->store.findFile(u"f"_s)->status, u"reviewed"_s);
        QVERIFY(!m_live->store.problem());
        m_live->board.files[0].summary = u"Newer"_s;
        post.open();
        waitForEnd();
        QCOMPARE(m_live->store.board(), m_live->board);
    }

    void anUndoOutlivesNoSession()
    {
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        waitForEnd();
        const Toast toast = *m_live->store.toast();
        m_live->store.signOut();
        toast.undo();
        QVERIFY(m_live->store.busy().isEmpty());
    }

    void anUndoOutlivesNoStore()
    {
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        waitForEnd();
        const Toast toast = *m_live->store.toast();
        m_live.reset();
        toast.undo();
    }

private:
    static Finding &finding(FileDetail &detail, qsizetype row) { return detail.findings[row]; }
    const Finding &held() const { return m_live->store.detail(u"f"_s)->findings.first(); }
    void waitForEnd() { QTRY_VERIFY(m_live->store.busy().isEmpty()); }

    QByteArrayList bodies(const QByteArray &target) const
    {
        QByteArrayList found;
        for (const Received &request : m_live->client.server.requests("POST", target))
            found.append(request.body);
        return found;
    }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestJudgement)
#include "tst_judgement.moc"
