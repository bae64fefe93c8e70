#include "livestore.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString tryingAgain = u"Can't reach the Vexal server right now. Trying again…"_s;
const QString offline = u"This Mac is offline. Vexal will catch up when it's back."_s;
const QString unreachable = u"Can't reach the Vexal server right now."_s;
const QString expired = u"You're signed out. Sign in again."_s;

} // namespace

Q_DECLARE_METATYPE(Answer)

/// What is known of single files, kept in step with the server.
class TestDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(aBoard({aFile(u"f"_s), aFile(u"g"_s)}));
        m_live->details.insert(u"g"_s, aDetail(u"g"_s, 6,
                                               {aFinding(u"x"_s, 0, u"low"_s), aFinding(u"y"_s, 1, u"medium"_s),
                                                aFinding(u"z"_s, 4, u"high"_s)}));
        m_live->begin();
    }
    void cleanup() { m_live.reset(); }

    void theFirstTimeAFileOpensOnItsFirstHighFinding()
    {
        m_live->store.selectFile(u"g"_s);
        m_live->round();
        QCOMPARE(m_live->store.shownPage(u"g"_s), 4);
        m_live->store.turnPage(u"g"_s, 2);
        m_live->details[u"g"_s].findings[0].severity = u"high"_s;
        m_live->round();
        QCOMPARE(m_live->store.detail(u"g"_s)->findings, m_live->details[u"g"_s].findings);
        QCOMPARE(m_live->store.shownPage(u"g"_s), 2);
    }

    void aFailureKeepsTheOldDetail_data() { failures(); }
    void aFailureKeepsTheOldDetail()
    {
        QFETCH(Answer, answer);
        bool wrong = true;
        m_live->client.server.on("GET", "/api/files/f").react([&](const Received &request) {
            return wrong ? answer : LiveStore::tagged(encode(m_live->details[u"f"_s]), request);
        });
        m_live->round();
        QCOMPARE(*m_live->store.detail(u"f"_s), m_live->details[u"f"_s]);
        QCOMPARE(m_live->store.detailProblem(u"f"_s), u""_s);
        QCOMPARE(m_live->store.problem(), std::nullopt);
        QCOMPARE(m_live->toast(), u""_s);
        wrong = false;
        m_live->round();
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").last().header("If-None-Match"),
                 LiveStore::tagOf(encode(m_live->details[u"f"_s])));
    }

    void aFailureWithNothingHeldIsSaidInItsPlace_data() { failures(); }
    void aFailureWithNothingHeldIsSaidInItsPlace()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, problem);
        m_live->client.server.on("GET", "/api/files/g").answer(answer);
        m_live->store.selectFile(u"g"_s);
        m_live->store.loadDetail(u"g"_s);
        QTRY_COMPARE(m_live->store.detailProblem(u"g"_s), problem);
        QCOMPARE(m_live->toast(), u""_s);
        QCOMPARE(m_live->store.problem(), std::nullopt);

        m_live->serveDetail(u"g"_s);
        m_live->store.loadDetail(u"g"_s);
        QTRY_VERIFY(m_live->store.detail(u"g"_s));
        QCOMPARE(m_live->store.detailProblem(u"g"_s), u""_s);
    }

    void aRefusedCredentialSignsOut()
    {
        m_live->client.server.on("GET", "/api/files/f").answer(401);
        m_live->store.loadDetail(u"f"_s);
        QTRY_VERIFY(!m_live->store.signedIn());
        QCOMPARE(m_live->toast(), expired);
    }

    void unchangedIsNoAnswerToSomeoneWithoutTheDetail()
    {
        m_live->client.server.on("GET", "/api/files/g").answer(304).react([this](const Received &request) {
            return LiveStore::tagged(encode(m_live->details[u"g"_s]), request);
        });
        m_live->store.loadDetail(u"g"_s);
        QTRY_VERIFY(m_live->store.detail(u"g"_s));
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/g").size(), 2);
    }

    void eachFileHasItsOwnTag()
    {
        m_live->store.loadDetail(u"g"_s);
        QTRY_VERIFY(m_live->store.detail(u"g"_s));
        m_live->client.server.forgetRequests();
        m_live->store.loadDetail(u"g"_s);
        m_live->store.loadDetail(u"f"_s);
        QTRY_COMPARE(m_live->client.server.requests().size(), 2);
        for (const QString &id : {u"f"_s, u"g"_s})
            QCOMPARE(m_live->client.server.requests("GET", "/api/files/" + id.toUtf8()).first().header("If-None-Match"),
                     LiveStore::tagOf(encode(m_live->details[id])));
    }

    void aDetailWithoutATagIsAskedForWithoutOne()
    {
        m_live->details[u"f"_s].file.summary = u"Changed"_s;
        m_live->client.server.on("GET", "/api/files/f").answer(200, encode(m_live->details[u"f"_s]));
        m_live->round();
        QCOMPARE(m_live->store.detail(u"f"_s)->file.summary, u"Changed"_s);
        m_live->round();
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").last().header("If-None-Match"), std::nullopt);
    }

    void anOlderDetailThatArrivesLaterIsDroppedWithItsTag()
    {
        Gate gate;
        FileDetail older = m_live->details[u"f"_s];
        older.file.summary = u"Older"_s;
        FileDetail newer = older;
        newer.file.summary = u"Newer"_s;
        m_live->client.server.on("GET", "/api/files/f")
            .answer(Answer(200, encode(older), {{"Etag", "\"older\""}}).heldBy(gate))
            .answer(200, encode(newer), {{"Etag", "\"newer\""}})
            .answer(304);
        m_live->store.loadDetail(u"f"_s);
        QTRY_COMPARE(m_live->client.server.requests("GET", "/api/files/f").size(), 1);
        m_live->store.loadDetail(u"f"_s);
        QTRY_COMPARE(m_live->store.detail(u"f"_s)->file.summary, u"Newer"_s);
        gate.open();
        m_live->round();
        m_live->round();
        QCOMPARE(m_live->store.detail(u"f"_s)->file.summary, u"Newer"_s);
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").last().header("If-None-Match"), "\"newer\"");
    }

    void aFileSwitchedAwayFromIsNotWaitedFor()
    {
        m_live->client.server.on("GET", "/api/files/g").answer(Answer::never());
        m_live->store.selectFile(u"g"_s);
        m_live->store.loadDetail(u"g"_s);
        QTRY_COMPARE(m_live->client.server.requests("GET", "/api/files/g").size(), 1);
        const int connections = m_live->client.server.openConnections();
        m_live->store.selectFile(u"f"_s);
        QTRY_COMPARE(m_live->client.server.openConnections(), connections - 1);
        QCOMPARE(m_live->store.detailProblem(u"g"_s), u""_s);
        QCOMPARE(m_live->toast(), u""_s);
    }

private:
    static void failures()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("problem");
        QTest::newRow("refused") << Answer(404, QJsonObject{{u"error"_s, u"No such file."_s}}) << u"No such file."_s;
        QTest::newRow("lost in the middle") << Answer(200, "{\"file\": {}}").cutAfter(4) << offline;
        QTest::newRow("never answered") << Answer::never() << tryingAgain;
        QTest::newRow("no JSON") << Answer(200, "garbage") << unreachable;
        QTest::newRow("a finding without a state")
            << Answer(200,
                      R"({"file":{"id":"f","status":"new"},"comments":[],"findings":[{"id":"x","file_id":"f","page":0,
                      "against":"latest","kind":"words","severity":"low","title":"t"}]})")
            << unreachable;
    }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestDetails)
#include "tst_details.moc"
