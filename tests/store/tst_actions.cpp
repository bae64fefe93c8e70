#include "livestore.h"
#include "useragent.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString tryingAgain = u"Can't reach the Vexal server right now. Trying again…"_s;
const QString offline = u"This Mac is offline. Vexal will catch up when it's back."_s;
const QString refused = u"The server didn't take that. Try again in a moment."_s;
const QString expired = u"You're signed out. Sign in again."_s;
const QString pdf = u"%PDF-1.4 a report"_s;

/// One thing that a person can do, what it is busy under, what goes over the wire, and what is said of it.
struct Action
{
    const char *name;
    std::function<void(LiveStore &)> act;
    QString key;
    QByteArray method;
    QByteArray target;
    QByteArray body;
    QByteArray contentType;
    QString toast;
    QString ownFailure = {}; ///< What is said of every failure, whatever the server says; empty: the failure's words.
    bool refreshesOnSuccess = true;
};

BoardState theBoard()
{
    BoardState board = aBoard({aFile(u"f"_s, u"in_review"_s), aFile(u"g"_s), aFile(u"h"_s)});
    Report report;
    report.id = u"r"_s;
    report.title = u"Fox"_s;
    board.reports = {report};
    return board;
}

FileDetail theDetail()
{
    FileDetail detail = aDetail(u"f"_s, 3, {aFinding(u"x"_s, 0, u"low"_s)});
    Note note;
    note.id = u"n1"_s;
    note.file_id = u"f"_s;
    note.text = u"Too dark"_s;
    detail.comments = {note};
    return detail;
}

const QList<Action> &actions()
{
    const QByteArray json = "application/json";
    static const QList<Action> all{
        {"sync", [](LiveStore &live) { live.store.startSync(); }, u"sync"_s, "POST", "/api/jobs", R"({"kind":"sync"})",
         json, u"Asked the Mac mini to sync."_s},
        {"report on the selected file", [](LiveStore &live) { live.store.makeReport(); }, u"report"_s, "POST",
         "/api/jobs", R"({"file_ids":["f"],"kind":"report"})", json, u"Asked the Mac mini for the report."_s},
        {"report on several files",
         [](LiveStore &live) {
             live.store.makeReport({u"h"_s, u"f"_s, u"gone"_s});
         },
         u"report"_s, "POST", "/api/jobs", R"({"file_ids":["f","h"],"kind":"report"})", json,
         u"Asked the Mac mini for the report."_s},
        {"stop", [](LiveStore &live) { live.store.stopJob(u"j7"_s); }, u"stop-j7"_s, "POST", "/api/jobs/j7/stop", "",
         "", u"Stopping."_s},
        {"reviewed", [](LiveStore &live) { live.store.setStatus(u"f"_s, u"reviewed"_s); }, u"status"_s, "POST",
         "/api/files/f/status", R"({"status":"reviewed"})", json, u"Marked reviewed."_s},
        {"in review", [](LiveStore &live) { live.store.setStatus(u"g"_s, u"in_review"_s); }, u"status"_s, "POST",
         "/api/files/g/status", R"({"status":"in_review"})", json, u"Back in review."_s},
        {"new", [](LiveStore &live) { live.store.setStatus(u"f"_s, u"new"_s); }, u"status"_s, "POST",
         "/api/files/f/status", R"({"status":"new"})", json, u"Moved to New."_s},
        {"issue", [](LiveStore &live) { live.store.setFindingState(u"x"_s, u"issue"_s); }, u"x"_s, "POST",
         "/api/findings/x", R"({"state":"issue"})", json, u"Marked a real issue."_s},
        {"fine", [](LiveStore &live) { live.store.setFindingState(u"x"_s, u"fine"_s); }, u"x"_s, "POST",
         "/api/findings/x", R"({"state":"fine"})", json, u"Marked fine."_s},
        {"open", [](LiveStore &live) { live.store.setFindingState(u"x"_s, u"open"_s); }, u"x"_s, "POST",
         "/api/findings/x", R"({"state":"open"})", json, u"Reopened."_s},
        {"note on the page", [](LiveStore &live) { live.store.addNote(u" Too\ndark \n"_s); }, u"note"_s, "POST",
         "/api/comments", R"({"file_id":"f","page":0,"text":"Too\ndark"})", json, u"Note added."_s},
        {"pinned note",
         [](LiveStore &live) {
             live.store.turnPage(u"f"_s, 2);
             live.store.placePin({0.25, 0.5});
             live.store.addNote(u"Here"_s);
         },
         u"note"_s, "POST", "/api/comments", R"({"file_id":"f","page":2,"text":"Here","x":0.25,"y":0.5})", json,
         u"Note added."_s},
        {"note on a finding",
         [](LiveStore &live) {
             live.store.answerFinding(u"x"_s);
             live.store.addNote(u"Yes"_s);
         },
         u"note"_s, "POST", "/api/comments", R"({"file_id":"f","finding_id":"x","page":0,"text":"Yes"})", json,
         u"Note added."_s},
        {"edit", [](LiveStore &live) { live.store.saveNote(u"n1"_s, u"Too light"_s); }, u"n-n1"_s, "POST",
         "/api/comments/n1", R"({"text":"Too light"})", json, u"Saved."_s},
        {"resolve", [](LiveStore &live) { live.store.resolveNote(u"n1"_s, true); }, u"n-n1"_s, "POST",
         "/api/comments/n1", R"({"resolved":true})", json, u"Resolved."_s},
        {"reopen", [](LiveStore &live) { live.store.resolveNote(u"n1"_s, false); }, u"n-n1"_s, "POST",
         "/api/comments/n1", R"({"resolved":false})", json, u"Reopened."_s},
        {"delete", [](LiveStore &live) { live.store.deleteNote(u"n1"_s); }, u"n-n1"_s, "POST", "/api/comments/n1",
         R"({"deleted":true})", json, u"Note deleted."_s},
        {"open report", [](LiveStore &live) { live.store.openReport(u"r"_s); }, u"open-r"_s, "GET",
         "/api/reports/r/pdf", "", "", u""_s, u"Couldn't open the report."_s, false},
    };
    return all;
}

/// The request as it goes over the wire, to the byte.
QByteArray wire(const Action &action, quint16 port)
{
    const auto line = [](const QByteArray &name, const QByteArray &value) { return name + ": " + value + "\r\n"; };
    QByteArray bytes = action.method + ' ' + action.target + " HTTP/1.1\r\n";
    bytes += line("Host", "127.0.0.1:" + QByteArray::number(port)) + line("Accept", "*/*");
    bytes += line("User-Agent", userAgent()) + line("Accept-Encoding", "gzip") + line("Cache-Control", "no-cache");
    if (!action.contentType.isEmpty())
        bytes += line("Content-Type", action.contentType);
    bytes += line("Authorization", "Bearer token");
    if (action.method != "GET")
        bytes += line("Content-Length", QByteArray::number(action.body.size()));
    return bytes + "\r\n" + action.body;
}

} // namespace

/// What people do, from the press to the end.
class TestActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(theBoard());
        m_live->details.insert(u"f"_s, theDetail());
        m_live->begin();
        m_live->store.selectFile(u"f"_s);
        m_live->round();
        m_live->client.server.forgetRequests();
        m_busy.clear();
        QObject::connect(&m_live->store, &Store::busyChanged, this, [this] { m_busy.append(m_live->store.busy()); });
    }
    void cleanup() { m_live.reset(); }

    void isSentAsAgreed_data() { everyAction(); }
    void isSentAsAgreed()
    {
        const Action &action = theAction();
        serve(action, Answer(200, pdf.toUtf8()));
        action.act(*m_live);
        QVERIFY(m_live->store.isBusy(action.key));
        waitForEnd();

        const auto sent = m_live->client.server.requests(action.method, action.target);
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().bytes, wire(action, m_live->client.server.port()));
    }

    void isBusyUntilTheBoardIsThereAgain_data() { everyAction(); }
    void isBusyUntilTheBoardIsThereAgain()
    {
        const Action &action = theAction();
        serve(action, Answer(200, pdf.toUtf8()));
        Gate gate;
        m_live->client.server.on("GET", "/api/state").answer(Answer(304).heldBy(gate));
        QSignalSpy answered(&m_live->store, &Store::answered);
        action.act(*m_live);
        if (action.refreshesOnSuccess) {
            QTRY_COMPARE(m_live->client.server.requests("GET", "/api/state").size(), 1);
            QCOMPARE(m_live->toast(), action.toast);
            QVERIFY(m_live->store.isBusy(action.key));
            QCOMPARE(answered.size(), 1);
            QCOMPARE(answered.first(), (QVariantList{action.key, true}));
            gate.open();
        }
        waitForEnd();
        QCOMPARE(m_busy, (QList<QSet<QString>>{{action.key}, {}}));
        QCOMPARE(m_live->toast(), action.toast);
        if (action.refreshesOnSuccess)
            QCOMPARE(m_live->asked().last(), u"GET /api/files/f"_s);
    }

    void aRefusalIsSaidInTheServersWords_data() { everyAction(); }
    void aRefusalIsSaidInTheServersWords()
    {
        fails(Answer(400, QJsonObject{{u"error"_s, u"Not on a Sunday."_s}}), u"Not on a Sunday."_s);
    }

    void aRefusalWithoutWords_data() { everyAction(); }
    void aRefusalWithoutWords() { fails(Answer(400, "<html>"), refused); }

    void anAnswerLostInTheMiddle_data() { everyAction(); }
    void anAnswerLostInTheMiddle() { fails(Answer(200, "{\"ok\": true}").cutAfter(3), offline); }

    void aServerThatClosesAfterTheRequest_data() { everyAction(); }
    void aServerThatClosesAfterTheRequest() { fails(Answer::closed(), offline); }

    void aServerThatNeverAnswers_data() { everyAction(); }
    void aServerThatNeverAnswers() { fails(Answer::never(), tryingAgain); }

    void anAnswerThatIsNoHttp_data() { everyAction(); }
    void anAnswerThatIsNoHttp() { fails(Answer::raw("garbage"), tryingAgain); }

    void aServerThatIsDown_data() { everyAction(); }
    void aServerThatIsDown()
    {
        const Action &action = theAction();
        m_live->client.server.goDown();
        m_live->round(); // By then the connections that stood are known to be gone.
        action.act(*m_live);
        QVERIFY(m_live->store.isBusy(action.key));
        waitForEnd();
        QCOMPARE(m_live->toast(), action.ownFailure.isEmpty() ? tryingAgain : action.ownFailure);
        QCOMPARE(m_busy, (QList<QSet<QString>>{{action.key}, {}}));
    }

    void aRefusedCredentialSignsOut_data() { everyAction(); }
    void aRefusedCredentialSignsOut()
    {
        const Action &action = theAction();
        serve(action, Answer(401, QJsonObject{{u"error"_s, u"Who?"_s}}));
        action.act(*m_live);
        waitForEnd();
        QCOMPARE(m_live->toast(), expired);
        QVERIFY(!m_live->store.signedIn());
        QCOMPARE(m_busy, (QList<QSet<QString>>{{action.key}, {}}));
        QVERIFY(m_live->client.server.requests("POST", "/api/logout").isEmpty());
        QVERIFY(m_live->client.server.requests("GET", "/api/state").isEmpty());
    }

    void anAnswerWhoseWordsAreNotReadIsStillATake_data()
    {
        QTest::addColumn<int>("action");
        for (int i = 0; i < actions().size() - 1; ++i)
            QTest::newRow(actions()[i].name) << i;
    }
    void anAnswerWhoseWordsAreNotReadIsStillATake()
    {
        const Action &action = theAction();
        serve(action, Answer(200, "garbage"));
        action.act(*m_live);
        waitForEnd();
        QCOMPARE(m_live->toast(), action.toast);
    }

    void theKeyIsReleasedWhenTheRefreshFails_data() { everyAction(); }
    void theKeyIsReleasedWhenTheRefreshFails()
    {
        const Action &action = theAction();
        serve(action, Answer(200, pdf.toUtf8()));
        m_live->client.server.on("GET", "/api/state").answer(500);
        action.act(*m_live);
        waitForEnd();
        QCOMPARE(m_busy, (QList<QSet<QString>>{{action.key}, {}}));
        QCOMPARE(m_live->toast(), action.toast);
        QCOMPARE(m_live->store.problem().has_value(), action.refreshesOnSuccess);
    }

    void theStoreMayGoMeanwhile_data() { everyAction(); }
    void theStoreMayGoMeanwhile()
    {
        const Action &action = theAction();
        serve(action, Answer(200, pdf.toUtf8()));
        action.act(*m_live);
        QTRY_COMPARE(m_live->client.server.requests(action.method, action.target).size(), 1);
        m_live.reset();
    }

    void whatAnEarlierSessionDidIsNotHeardOf_data() { everyAction(); }
    void whatAnEarlierSessionDidIsNotHeardOf()
    {
        const Action &action = theAction();
        for (const int status : {200, 400, 401}) {
            Gate gate;
            serve(action, Answer(status, pdf.toUtf8()).heldBy(gate));
            action.act(*m_live);
            QTRY_VERIFY(!m_live->client.server.requests(action.method, action.target).isEmpty());
            m_live->store.signOut();
            QVERIFY(!m_live->store.isBusy(action.key));
            signInAgain();
            serve(action, Answer(200, pdf.toUtf8()));
            m_live->client.server.forgetRequests();
            m_busy.clear();

            gate.open();
            m_live->round();
            m_live->round();
            QCOMPARE(m_live->asked().filter(u"POST"_s), QStringList());
            QVERIFY(m_live->store.signedIn());
            QCOMPARE(m_live->toast(), u""_s);
            QCOMPARE(m_busy, QList<QSet<QString>>());
            QVERIFY(m_live->opener.files.isEmpty());
            m_live->client.server.forgetRequests();
        }
    }

    void anEarlierSessionsAnswerLeavesTheNewOnesKeyAlone()
    {
        Gate early;
        Gate late;
        m_live->client.server.on("POST", "/api/jobs")
            .answer(Answer(200).heldBy(early))
            .answer(Answer(200).heldBy(late));
        m_live->store.startSync();
        QTRY_COMPARE(m_live->client.server.requests("POST", "/api/jobs").size(), 1);
        m_live->store.signOut();
        signInAgain();
        m_live->store.startSync();
        QTRY_COMPARE(m_live->client.server.requests("POST", "/api/jobs").size(), 1);
        early.open();
        m_live->round();
        m_live->round();
        QVERIFY(m_live->store.isBusy(u"sync"_s));
        late.open();
        QTRY_VERIFY(!m_live->store.isBusy(u"sync"_s));
        QCOMPARE(m_live->toast(), u"Asked the Mac mini to sync."_s);
    }

    void aKeyHeldTwiceIsBusyUntilBothHaveEnded()
    {
        Gate first;
        Gate second;
        m_live->client.server.on("POST", "/api/files/f/status").answer(Answer(200).heldBy(first));
        m_live->client.server.on("POST", "/api/files/g/status").answer(Answer(200).heldBy(second));
        m_live->store.setStatus(u"f"_s, u"reviewed"_s);
        m_live->store.setStatus(u"g"_s, u"reviewed"_s);
        first.open();
        QTRY_COMPARE(m_live->toast(), u"Marked reviewed."_s);
        m_live->round();
        m_live->round();
        QVERIFY(m_live->store.isBusy(u"status"_s));
        second.open();
        waitForEnd();
        QCOMPARE(m_busy, (QList<QSet<QString>>{{u"status"_s}, {}}));
    }

    void actionsOfSeveralKeysGoOnAtOnce()
    {
        m_live->client.server.on("POST", "/api/jobs").answer(200);
        m_live->client.server.on("POST", "/api/comments").answer(200);
        m_live->store.startSync();
        m_live->store.addNote(u"Hello"_s);
        QCOMPARE(m_live->store.busy(), (QSet{u"sync"_s, u"note"_s}));
        waitForEnd();
    }

    void withoutAFileThereIsNothingToReportOn()
    {
        m_live->store.selectFile(u"g"_s, true);
        m_live->store.makeReport();
        m_live->store.makeReport({u"gone"_s});
        QVERIFY(m_live->store.busy().isEmpty());
    }

private:
    static void everyAction()
    {
        QTest::addColumn<int>("action");
        for (int i = 0; i < actions().size(); ++i)
            QTest::newRow(actions()[i].name) << i;
    }

    static const Action &theAction()
    {
        return actions()[*static_cast<int *>(QTest::qData("action", qMetaTypeId<int>()))];
    }

    void serve(const Action &action, const Answer &answer)
    {
        m_live->client.server.on(action.method, action.target).answer(answer);
    }

    void waitForEnd() { QTRY_VERIFY(m_live->store.busy().isEmpty()); }

    void signInAgain()
    {
        m_live->client.credentials.store(u"token"_s, &m_live->store, [] {});
        m_live->begin();
        m_live->store.selectFile(u"f"_s);
        m_live->round();
        m_live->client.server.forgetRequests();
    }

    void fails(const Answer &answer, const QString &sentence)
    {
        const Action &action = theAction();
        serve(action, answer);
        QSignalSpy answered(&m_live->store, &Store::answered);
        action.act(*m_live);
        waitForEnd();
        QCOMPARE(m_live->toast(), action.ownFailure.isEmpty() ? sentence : action.ownFailure);
        QVERIFY(!m_live->store.toast()->undoLabel);
        QCOMPARE(m_busy, (QList<QSet<QString>>{{action.key}, {}}));
        QVERIFY(m_live->store.signedIn());
        if (action.refreshesOnSuccess)
            QCOMPARE(answered, (QList<QVariantList>{{action.key, false}}));
        if (action.method != "GET")
            QCOMPARE(m_live->client.server.requests(action.method, action.target).size(), 1);
    }

    std::unique_ptr<LiveStore> m_live;
    QList<QSet<QString>> m_busy; ///< What was busy after each change of it.
};

QTEST_GUILESS_MAIN(TestActions)
#include "tst_actions.moc"
