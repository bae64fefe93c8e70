#include "client.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using vexal::Failure;
using vexal::Request;

namespace {

const Failure computerOffline = Failure::offline(u"This Mac is offline. Vexal will catch up when it's back."_s);
const Failure outOfReach = Failure::offline(u"Can't reach the Vexal server right now. Trying again…"_s);

Request fetch()
{
    return {.path = u"x"_s};
}

Request post()
{
    return {.path = u"x"_s, .method = "POST", .json = QJsonObject{{u"kind"_s, u"sync"_s}}};
}

Request postNothing()
{
    return {.path = u"x"_s, .method = "POST"};
}

Request put()
{
    return {.path = u"x"_s, .method = "PUT", .raw = QByteArray(100'000, 'p')};
}

Script &script(Client &client, const Request &request)
{
    return client.server.on(request.method, "/x");
}

} // namespace

Q_DECLARE_METATYPE(vexal::Request)

/// What becomes of a request when the way to the server, or the server, fails it.
class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRefusedConnection();
    void anUnknownHost();
    void withoutANetworkTheComputerIsOffline();
    void withoutANetworkThisComputerIsStillReached();
    void aServerOverTlsThatNobodyVouchesFor();

    void aConnectionClosedAfterTheRequest_data();
    void aConnectionClosedAfterTheRequest();
    void aConnectionTornDownAfterTheRequest();
    void aHeadCutShort();
    void aBodyCutShort_data();
    void aBodyCutShort();
    void aRefusalCutShortIsNoRefusal();
    void garbage_data();
    void garbage();

    void aServerThatNeverAnswers_data();
    void aServerThatNeverAnswers();
    void aServerThatFallsSilentInTheBody();
    void aHeadThatTakesTooLong();
    void apartFromTestsAByteMayTakeHalfAMinuteAndAHeadAWholeOne();
    void aHeadThatTricklesIsWaitedForThatLong();
    void aBrokenChunk();
    void aBodyThatTricklesIsWaitedFor();
    void aRequestThatQueuesIsNotHurried();

    void whatChangesSomethingIsSentOnce_data();
    void whatChangesSomethingIsSentOnce();
    void anIdleConnectionThatTheServerClosedIsReplaced_data();
    void anIdleConnectionThatTheServerClosedIsReplaced();
    void aFetchIsTriedOnceMoreAtMost();
    void aHeadWithoutEndIsGivenUp();
    void nothingThatIsSaidToBePackedIsNothing();

    void aGzippedBodyIsUnpacked();
    void aGzippedRefusalIsUnpacked();
    void aGzippedBodyCutShort();
    void aGzipBomb();
    void anUnknownCoding();
    void chunks();
    void aBodyThatEndsWithTheConnection();
    void fortyMegabytes();
    void aBodyAtTheLimitAndOverIt_data();
    void aBodyAtTheLimitAndOverIt();
    void aBodyWithoutAnEndIsCutOff();

    void aServerThatComesBackIsReached();
};

void FaultsTest::aRefusedConnection()
{
    Client client;
    client.server.goDown();
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
    QCOMPARE(client.send(post()).failure(), outOfReach);
}

void FaultsTest::anUnknownHost()
{
    Client client;
    client.preferences.setValue(vexal::preference::serverURL, u"http://nowhere.invalid"_s);
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::withoutANetworkTheComputerIsOffline()
{
    Client client;
    client.presence.set(false);
    client.preferences.setValue(vexal::preference::serverURL, u"http://nowhere.invalid"_s);
    QCOMPARE(client.send(fetch()).failure(), computerOffline);
}

void FaultsTest::withoutANetworkThisComputerIsStillReached()
{
    Client client;
    client.presence.set(false);
    client.server.on("GET", "/x").answer(200);
    QVERIFY(client.send(fetch()));
    client.server.goDown();
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::aServerOverTlsThatNobodyVouchesFor()
{
    Client client;
    QUrl url = client.server.url();
    url.setScheme(u"https"_s);
    client.preferences.setValue(vexal::preference::serverURL, url.toString());
    client.server.on("GET", "/x").answer(200);
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
    QCOMPARE(client.server.requests().size(), 0);
}

void FaultsTest::aConnectionClosedAfterTheRequest_data()
{
    QTest::addColumn<Request>("request");
    QTest::newRow("GET") << fetch();
    QTest::newRow("POST") << post();
    QTest::newRow("POST without a body") << postNothing();
    QTest::newRow("PUT") << put();
}

void FaultsTest::aConnectionClosedAfterTheRequest()
{
    QFETCH(Request, request);
    Client client;
    script(client, request).answer(Answer::closed());
    QCOMPARE(client.send(request).failure(), computerOffline);
}

void FaultsTest::aConnectionTornDownAfterTheRequest()
{
    Client client;
    client.server.on("POST", "/x").answer(Answer::raw({}).resetAfter(0));
    QCOMPARE(client.send(post()).failure(), computerOffline);
}

void FaultsTest::aHeadCutShort()
{
    Client client;
    client.server.on("POST", "/x").answer(Answer::raw("HTTP/1.1 200 OK\r\nContent-Len"));
    QCOMPARE(client.send(post()).failure(), computerOffline);
}

void FaultsTest::aBodyCutShort_data()
{
    QTest::addColumn<Answer>("answer");
    const QByteArray board(300'000, 'b');
    QTest::newRow("by its length") << Answer(200, board).cutAfter(200'000);
    QTest::newRow("before its first byte") << Answer(200, board).cutAfter(0);
    QTest::newRow("before its last byte") << Answer(200, board).cutAfter(299'999);
    QTest::newRow("torn down") << Answer(200, board).resetAfter(200'000);
    QTest::newRow("in a chunk") << Answer(200, board).chunked(1000).cutAfter(5500);
    QTest::newRow("between chunks") << Answer(200, "0123456789").chunked(5).cutAfter(10);
    QTest::newRow("before the last chunk") << Answer(200, "0123456789").chunked(5).cutAfter(20);
}

void FaultsTest::aBodyCutShort()
{
    QFETCH(Answer, answer);
    Client client;
    client.server.on("GET", "/x").answer(answer);
    QCOMPARE(client.send(fetch()).failure(), computerOffline);
}

void FaultsTest::aRefusalCutShortIsNoRefusal()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(500, R"({"error": "No."})").cutAfter(5));
    QCOMPARE(client.send(fetch()).failure(), computerOffline);
    client.server.on("GET", "/x").answer(Answer(401, R"({"error": "No."})").cutAfter(5));
    QCOMPARE(client.send(fetch()).failure(), computerOffline);
}

void FaultsTest::garbage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("words") << QByteArray("what is this?\r\n\r\n");
    QTest::newRow("another protocol") << QByteArray("SSH-2.0-OpenSSH_9.2\r\n");
    QTest::newRow("zeros") << QByteArray(5000, '\0');
}

void FaultsTest::garbage()
{
    QFETCH(QByteArray, bytes);
    Client client;
    client.server.on("GET", "/x").answer(Answer::raw(bytes));
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
    QCOMPARE(client.server.requests().size(), 1);
}

void FaultsTest::aServerThatNeverAnswers_data()
{
    aConnectionClosedAfterTheRequest_data();
}

void FaultsTest::aServerThatNeverAnswers()
{
    QFETCH(Request, request);
    Client client;
    script(client, request).answer(Answer::never());
    QElapsedTimer waited;
    waited.start();
    QCOMPARE(client.send(request).failure(), outOfReach);
    QVERIFY(waited.elapsed() >= 700);
    QCOMPARE(client.server.requests().size(), 1);
}

void FaultsTest::aServerThatFallsSilentInTheBody()
{
    Client client;
    Gate gate;
    client.server.on("GET", "/x").answer(Answer(200, "0123456789").heldBy(gate, 5));
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::aHeadThatTakesTooLong()
{
    Client client({.idle = 10s, .head = 300ms});
    client.server.on("GET", "/x").answer(Answer::never());
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::aHeadThatTricklesIsWaitedForThatLong()
{
    const QByteArray head = "HTTP/1.1 200 OK\r\nX-A: 1\r\nX-B: 2\r\nX-C: 3\r\nX-D: 4\r\nX-E: 5\r\n";
    Client patient({.idle = 800ms, .head = 20s});
    patient.server.on("GET", "/x").answer(Answer::raw(head + "Content-Length: 2\r\n\r\nok").trickled(2, 25ms));
    QElapsedTimer waited;
    waited.start();
    QCOMPARE(patient.send(fetch())->body, "ok");
    QVERIFY(waited.elapsed() > 900);
    Client client({.idle = 800ms, .head = 400ms});
    client.server.on("GET", "/x").answer(Answer::raw(head + "Content-Length: 2\r\n\r\nok").trickled(2, 25ms));
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::aBrokenChunk()
{
    Client client;
    const QByteArray head = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    for (const char *body : {"5\r\nhello\r\nzz\r\nno\r\n0\r\n\r\n", "-1\r\nhello\r\n0\r\n\r\n", "\r\n\r\n"}) {
        client.server.on("GET", "/x").answer(Answer::raw(head + body));
        QVERIFY(!client.send(fetch()));
    }
}

void FaultsTest::aBodyThatTricklesIsWaitedFor()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(200, QByteArray(50, 'x')).trickled(1, 40ms));
    QElapsedTimer waited;
    waited.start();
    const auto answer = client.send(fetch());
    QVERIFY(answer);
    QCOMPARE(answer->body.size(), 50);
    QVERIFY(waited.elapsed() > Client::impatient.head.count());
}

void FaultsTest::aRequestThatQueuesIsNotHurried()
{
    Client client;
    // Six that are alive but slow hold every connection for longer than a silent one would be waited for.
    client.server.on("GET", "/slow").answer(Answer(200, QByteArray(30, 'x')).trickled(1, 40ms));
    client.server.on("GET", "/x").answer(200);
    int slow = 0;
    for (int i = 0; i < 6; ++i)
        client.api.send({.path = u"slow"_s}, this, [&slow](const auto &answer) { slow += bool(answer); });
    QVERIFY(client.send(fetch()));
    QTRY_COMPARE(slow, 6);
}

void FaultsTest::whatChangesSomethingIsSentOnce_data()
{
    QTest::addColumn<Request>("request");
    QTest::addColumn<Answer>("answer");
    const std::pair<const char *, Request> requests[] = {
        {"POST", post()}, {"POST of nothing", postNothing()}, {"PUT", put()}};
    for (const auto &[name, request] : requests) {
        QTest::addRow("%s, closed", name) << request << Answer::closed();
        QTest::addRow("%s, torn down", name) << request << Answer::raw({}).resetAfter(0);
        QTest::addRow("%s, head cut", name) << request << Answer::raw("HTTP/1.1 20");
        QTest::addRow("%s, garbage", name) << request << Answer::raw("what?\r\n\r\n");
        QTest::addRow("%s, body cut", name) << request << Answer(200, "0123456789").cutAfter(3);
        QTest::addRow("%s, unauthorised", name) << request << Answer(401, {}, {{"WWW-Authenticate", "NTLM"}});
        QTest::addRow("%s, unavailable", name) << request << Answer(503, {}, {{"Retry-After", "0"}});
        QTest::addRow("%s, misdirected", name) << request << Answer(421);
    }
}

void FaultsTest::whatChangesSomethingIsSentOnce()
{
    QFETCH(Request, request);
    QFETCH(Answer, answer);
    for (bool onAnOldConnection : {false, true}) {
        Client client;
        if (onAnOldConnection) {
            client.server.on("GET", "/first").answer(200);
            QVERIFY(client.send({.path = u"first"_s}));
        }
        script(client, request).answer(answer);
        QVERIFY(!client.send(request));
        client.server.on("GET", "/last").answer(200);
        QVERIFY(client.send({.path = u"last"_s}));
        QCOMPARE(client.server.requests(request.method, "/x").size(), 1);
    }
}

void FaultsTest::anIdleConnectionThatTheServerClosedIsReplaced_data()
{
    aConnectionClosedAfterTheRequest_data();
}

void FaultsTest::anIdleConnectionThatTheServerClosedIsReplaced()
{
    QFETCH(Request, request);
    Client client;
    client.server.on("GET", "/first").answer(Answer(200, "x").closing());
    script(client, request).answer(200, "y");
    for (int i = 0; i < 5; ++i) {
        QVERIFY(client.send({.path = u"first"_s}));
        QTRY_COMPARE(client.server.openConnections(), 0);
        const auto answer = client.send(request);
        QVERIFY(answer);
        QCOMPARE(answer->body, "y");
    }
}

void FaultsTest::aFetchIsTriedOnceMoreAtMost()
{
    Client client;
    // Several connections are kept.
    Gate gate;
    client.server.on("GET", "/first").answer(Answer(200, "x").heldBy(gate));
    QList<bool> answered;
    for (int i = 0; i < 5; ++i)
        client.api.send({.path = u"first"_s}, this, [&answered](const auto &answer) { answered.append(bool(answer)); });
    QTRY_COMPARE(client.server.requests("GET", "/first").size(), 5);
    gate.open();
    QTRY_COMPARE(answered, QList<bool>(5, true));
    QCOMPARE(client.server.openConnections(), 5);

    client.server.on("GET", "/x").answer(Answer::closed());
    QCOMPARE(client.send(fetch()).failure(), computerOffline);
    QCOMPARE(client.server.requests("GET", "/x").size(), 2);
}

void FaultsTest::aHeadWithoutEndIsGivenUp()
{
    Client client;
    Answer::Headers headers;
    for (int i = 0; i < 10; ++i)
        headers.append({"X-" + QByteArray::number(i), QByteArray(60'000, 'x')});
    client.server.on("GET", "/x").answer(200, "x", headers);
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::nothingThatIsSaidToBePackedIsNothing()
{
    Client client;
    client.server.on("POST", "/x").answer(200, {}, {{"Content-Encoding", "gzip"}});
    const auto answer = client.send({.path = u"x"_s, .method = "POST"});
    QVERIFY(answer);
    QCOMPARE(answer->body, QByteArray());
}

void FaultsTest::aGzippedBodyIsUnpacked()
{
    Client client;
    const QByteArray board = QByteArray("{\"rev\": 1}").repeated(10'000);
    client.server.on("GET", "/x").answer(Answer(200, board).gzipped());
    const auto answer = client.send(fetch());
    QVERIFY(answer);
    QVERIFY(answer->body == board);
    client.server.on("GET", "/x").answer(Answer(200, board).gzipped().chunked(777));
    QVERIFY(client.send(fetch())->body == board);
}

void FaultsTest::aGzippedRefusalIsUnpacked()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(400, R"({"error": "No."})").gzipped());
    QCOMPARE(client.send(fetch()).failure(), Failure::server(u"No."_s));
}

void FaultsTest::aGzippedBodyCutShort()
{
    Client client;
    for (qsizetype by : {1, 4, 9, 20}) {
        client.server.on("GET", "/x").answer(Answer(200, "a board with words").gzippedAndCut(by));
        QCOMPARE(client.send(fetch()).failure(), outOfReach);
    }
}

void FaultsTest::aGzipBomb()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(200, QByteArray(vexal::limit::json + 1, '\0')).gzipped());
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
}

void FaultsTest::anUnknownCoding()
{
    Client client;
    client.server.on("GET", "/x")
        .answer(200, "?", {{"Content-Encoding", "br"}})
        .answer(502, "?", {{"Content-Encoding", "br"}})
        .answer(200, "x", {{"Content-Encoding", "identity"}});
    QCOMPARE(client.send(fetch()).failure(), outOfReach);
    QCOMPARE(client.send(fetch()).failure(), Failure::server(u"The server didn't take that. Try again in a moment."_s));
    QCOMPARE(client.send(fetch())->body, "x");
}

void FaultsTest::chunks()
{
    Client client;
    const QByteArray board(1'000'000, 'b');
    client.server.on("GET", "/x").answer(Answer(200, board).chunked(1000));
    QVERIFY(client.send(fetch())->body == board);
}

void FaultsTest::aBodyThatEndsWithTheConnection()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(200, "board").withoutLength());
    QCOMPARE(client.send(fetch())->body, "board");
}

void FaultsTest::fortyMegabytes()
{
    Client client;
    const QByteArray board = QByteArray("0123456789abcdef").repeated(40 * 1024 * 1024 / 16);
    client.server.on("GET", "/x").answer(200, board);
    const auto answer = client.send(fetch());
    QVERIFY(answer);
    QVERIFY(answer->body == board);
}

void FaultsTest::aBodyAtTheLimitAndOverIt_data()
{
    QTest::addColumn<qint64>("limit");
    QTest::newRow("small") << qint64(100'000);
    QTest::newRow("JSON") << vexal::limit::json;
}

void FaultsTest::aBodyAtTheLimitAndOverIt()
{
    QFETCH(qint64, limit);
    Client client;
    const Request request{.path = u"x"_s, .limit = limit};
    client.server.on("GET", "/x").answer(200, QByteArray(limit, 'x')).answer(200, QByteArray(limit + 1, 'x'));
    QCOMPARE(client.send(request)->body.size(), limit);
    QCOMPARE(client.send(request).failure(), outOfReach);
}

void FaultsTest::aBodyWithoutAnEndIsCutOff()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer(200, QByteArray(300'000, 'x')).withoutLength());
    QCOMPARE(client.send({.path = u"x"_s, .limit = 200'000}).failure(), outOfReach);
    QTRY_COMPARE(client.server.openConnections(), 0);
}

void FaultsTest::aServerThatComesBackIsReached()
{
    Client client;
    client.server.on("GET", "/x").answer(200);
    QVERIFY(client.send(fetch()));
    client.server.goDown();
    QVERIFY(!client.send(fetch()));
    client.server.comeUp();
    QVERIFY(client.send(fetch()));
}

void FaultsTest::apartFromTestsAByteMayTakeHalfAMinuteAndAHeadAWholeOne()
{
    QCOMPARE(vexal::Timeouts().idle, std::chrono::seconds(30));
    QCOMPARE(vexal::Timeouts().head, std::chrono::seconds(60));
}

QTEST_GUILESS_MAIN(FaultsTest)
#include "tst_faults.moc"
