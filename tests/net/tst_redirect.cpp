#include "client.h"
#include "redirect.h"

#include <QTest>

using namespace Qt::StringLiterals;
using vexal::Outgoing;
using vexal::redirected;

namespace {

Outgoing posted()
{
    return {.url = QUrl(u"https://b.example/api/jobs"_s),
            .method = "POST",
            .body = "{}",
            .contentType = "application/json",
            .authorization = "Bearer t",
            .entityTag = "\"e\""};
}

Outgoing fetched()
{
    return {.url = QUrl(u"https://b.example/api/state"_s), .method = "GET", .authorization = "Bearer t"};
}

} // namespace

class RedirectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatAPostBecomes_data();
    void whatAPostBecomes();
    void whatAPutBecomes_data();
    void whatAPutBecomes();
    void whatHasABodyIsNotRepeatedElsewhere_data();
    void whatHasABodyIsNotRepeatedElsewhere();
    void theCredentialStaysInItsOrigin_data();
    void theCredentialStaysInItsOrigin();
    void anotherOriginCannotSignThePersonOut();
    void whereALocationLeads_data();
    void whereALocationLeads();
    void aLocationIsRefused_data();
    void aLocationIsRefused();

    void aRedirectIsFollowed();
    void aPostThatMovedIsFetched();
    void aPostIsRepeatedWhereItIsAsked();
    void theCredentialIsNotShownToAnotherServer();
    void theCredentialDoesNotComeBackWithTheWay();
    void tenRedirectsAreFollowedAndNoMore();
    void aRefusedRedirectIsAFailureOfTheWay();
    void aRedirectWithoutALocationIsAnAnswer();
};

void RedirectTest::whatAPostBecomes_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("repeated");
    QTest::newRow("301") << 301 << false;
    QTest::newRow("302") << 302 << false;
    QTest::newRow("303") << 303 << false;
    QTest::newRow("307") << 307 << true;
    QTest::newRow("308") << 308 << true;
}

void RedirectTest::whatAPostBecomes()
{
    QFETCH(int, status);
    QFETCH(bool, repeated);
    const auto next = redirected(posted(), status, "/there");
    QVERIFY(next);
    QCOMPARE(next->url, QUrl(u"https://b.example/there"_s));
    QCOMPARE(next->method, QByteArray(repeated ? "POST" : "GET"));
    QCOMPARE(next->body.has_value(), repeated);
    QCOMPARE(next->contentType, QByteArray(repeated ? "application/json" : ""));
    QCOMPARE(next->authorization, "Bearer t");
}

void RedirectTest::whatAPutBecomes_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("method");
    QTest::newRow("301") << 301 << QByteArray("PUT");
    QTest::newRow("302") << 302 << QByteArray("PUT");
    QTest::newRow("303") << 303 << QByteArray("GET");
    QTest::newRow("307") << 307 << QByteArray("PUT");
    QTest::newRow("308") << 308 << QByteArray("PUT");
}

void RedirectTest::whatAPutBecomes()
{
    QFETCH(int, status);
    Outgoing put = posted();
    put.method = "PUT";
    const auto next = redirected(put, status, "/there");
    QVERIFY(next);
    QTEST(next->method, "method");
}

void RedirectTest::whatHasABodyIsNotRepeatedElsewhere_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("location");
    QTest::newRow("another host") << 307 << QByteArray("https://c.example/api/jobs");
    QTest::newRow("another port") << 308 << QByteArray("https://b.example:8443/api/jobs");
    QTest::newRow("below the host") << 307 << QByteArray("https://x.b.example/api/jobs");
}

void RedirectTest::whatHasABodyIsNotRepeatedElsewhere()
{
    QFETCH(int, status);
    QFETCH(QByteArray, location);
    QVERIFY(!redirected(posted(), status, location));
    QVERIFY(redirected(posted(), 303, location));
    QVERIFY(redirected(fetched(), status, location));
}

void RedirectTest::theCredentialStaysInItsOrigin_data()
{
    QTest::addColumn<QByteArray>("location");
    QTest::addColumn<bool>("stays");
    QTest::newRow("relative") << QByteArray("other") << true;
    QTest::newRow("same origin") << QByteArray("https://b.example/other") << true;
    QTest::newRow("same origin, port said") << QByteArray("https://b.example:443/other") << true;
    QTest::newRow("same origin, large letters") << QByteArray("HTTPS://B.EXAMPLE/other") << true;
    QTest::newRow("another port") << QByteArray("https://b.example:444/other") << false;
    QTest::newRow("another host") << QByteArray("https://c.example/other") << false;
    QTest::newRow("without a scheme") << QByteArray("//c.example/other") << false;
}

void RedirectTest::theCredentialStaysInItsOrigin()
{
    QFETCH(QByteArray, location);
    QFETCH(bool, stays);
    const auto next = redirected(fetched(), 302, location);
    QVERIFY(next);
    QCOMPARE(next->authorization, QByteArray(stays ? "Bearer t" : ""));
    QCOMPARE(next->abroad, !stays);
}

void RedirectTest::anotherOriginCannotSignThePersonOut()
{
    Client client;
    ScriptedServer abroad;
    abroad.on("GET", "/there").answer(401);
    client.server.on("GET", "/x")
        .answer(302, QByteArray(), {{"Location", (abroad.url().toString() + u"/there"_s).toUtf8()}});
    const auto answer = client.send({.path = u"x"_s, .entityTag = u"\"1\""_s});
    QCOMPARE(answer.failure().kind, vexal::Failure::Kind::Server);
    QCOMPARE(abroad.requests().size(), 1);
    QVERIFY(!abroad.requests().first().header("Authorization"));
    QVERIFY(!abroad.requests().first().header("If-None-Match"));
}

void RedirectTest::whereALocationLeads_data()
{
    QTest::addColumn<QByteArray>("location");
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("a sibling") << QByteArray("board") << QByteArray("https://b.example/api/board");
    QTest::newRow("from the root") << QByteArray("/board?x=1") << QByteArray("https://b.example/board?x=1");
    QTest::newRow("encoded") << QByteArray("/a%2Fb%20c") << QByteArray("https://b.example/a%2Fb%20c");
    QTest::newRow("raw bytes") << QByteArray("/\xc3\xbc") << QByteArray("https://b.example/%C3%BC");
}

void RedirectTest::whereALocationLeads()
{
    QFETCH(QByteArray, location);
    const auto next = redirected(fetched(), 302, location);
    QVERIFY(next);
    QTEST(next->url.toEncoded(), "url");
}

void RedirectTest::aLocationIsRefused_data()
{
    QTest::addColumn<QByteArray>("location");
    QTest::newRow("from https to http") << QByteArray("http://b.example/api/state");
    QTest::newRow("a file") << QByteArray("file:///etc/passwd");
    QTest::newRow("another scheme") << QByteArray("vexal://signed-in");
    QTest::newRow("data") << QByteArray("data:text/plain,hello");
    QTest::newRow("no host") << QByteArray("https:///x");
    QTest::newRow("nonsense") << QByteArray("https://b example:port/");
    QTest::newRow("nothing") << QByteArray("");
}

void RedirectTest::aLocationIsRefused()
{
    QFETCH(QByteArray, location);
    QVERIFY(!redirected(fetched(), 302, location));
}

void RedirectTest::aRedirectIsFollowed()
{
    Client client;
    client.server.on("GET", "/api/state").answer(302, "elsewhere", {{"Location", "/new/state"}});
    client.server.on("GET", "/new/state").answer(200, "board");
    const auto answer = client.send({.path = u"api/state"_s, .entityTag = u"\"e\""_s});
    QVERIFY(answer);
    QCOMPARE(answer->body, "board");
    QCOMPARE(client.server.requests().size(), 2);
    QCOMPARE(client.server.requests()[1].header("Authorization"), "Bearer token");
    QCOMPARE(client.server.requests()[1].header("If-None-Match"), "\"e\"");
}

void RedirectTest::aPostThatMovedIsFetched()
{
    Client client;
    client.server.on("POST", "/api/jobs").answer(303, {}, {{"Location", "/done"}});
    client.server.on("GET", "/done").answer(200, "done");
    const auto answer =
        client.send({.path = u"api/jobs"_s, .method = "POST", .json = QJsonObject{{u"kind"_s, u"sync"_s}}});
    QVERIFY(answer);
    const Received last = client.server.requests().last();
    QCOMPARE(last.method, "GET");
    QCOMPARE(last.body, QByteArray());
    QVERIFY(!last.header("Content-Type"));
    QVERIFY(!last.header("Content-Length"));
}

void RedirectTest::aPostIsRepeatedWhereItIsAsked()
{
    Client client;
    client.server.on("POST", "/api/jobs").answer(307, {}, {{"Location", "/v2/jobs"}});
    client.server.on("POST", "/v2/jobs").answer(200, "taken");
    const auto answer =
        client.send({.path = u"api/jobs"_s, .method = "POST", .json = QJsonObject{{u"kind"_s, u"sync"_s}}});
    QVERIFY(answer);
    QCOMPARE(client.server.requests().size(), 2);
    QCOMPARE(client.server.requests().last().body, "{\"kind\":\"sync\"}");
    QCOMPARE(client.server.requests().last().header("Content-Type"), "application/json");
}

void RedirectTest::theCredentialIsNotShownToAnotherServer()
{
    Client client;
    ScriptedServer other;
    client.server.on("GET", "/api/blob/x")
        .answer(302, {}, {{"Location", (other.url().toString() + "/x"_L1).toLatin1()}});
    other.on("GET", "/x").answer(200, "picture");
    const auto answer = client.send({.path = u"api/blob/x"_s});
    QVERIFY(answer);
    QCOMPARE(answer->body, "picture");
    QVERIFY(!other.requests().first().bytes.contains("token"));
}

void RedirectTest::theCredentialDoesNotComeBackWithTheWay()
{
    Client client;
    ScriptedServer other;
    client.server.on("GET", "/a").answer(302, {}, {{"Location", (other.url().toString() + "/b"_L1).toLatin1()}});
    other.on("GET", "/b").answer(302, {}, {{"Location", (client.server.url().toString() + "/c"_L1).toLatin1()}});
    client.server.on("GET", "/c").answer(200);
    QVERIFY(client.send({.path = u"a"_s}));
    QVERIFY(!client.server.requests("GET", "/c").first().header("Authorization"));
}

void RedirectTest::tenRedirectsAreFollowedAndNoMore()
{
    Client client;
    for (int i = 0; i < 11; ++i)
        client.server.on("GET", "/" + QByteArray::number(i))
            .answer(302, {}, {{"Location", "/" + QByteArray::number(i + 1)}});
    client.server.on("GET", "/11").answer(200, "end");
    QVERIFY(client.send({.path = u"1"_s}));
    QCOMPARE(client.server.requests().size(), 11);
    client.server.forgetRequests();
    const auto answer = client.send({.path = u"0"_s});
    QVERIFY(!answer);
    QCOMPARE(answer.failure().sentence, u"Can't reach the Vexal server right now. Trying again…"_s);
    QCOMPARE(client.server.requests().size(), 11);
}

void RedirectTest::aRefusedRedirectIsAFailureOfTheWay()
{
    Client client;
    client.server.on("GET", "/a").answer(302, {}, {{"Location", "file:///etc/passwd"}});
    const auto answer = client.send({.path = u"a"_s});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), vexal::Failure::offline(u"Can't reach the Vexal server right now. Trying again…"_s));
}

void RedirectTest::aRedirectWithoutALocationIsAnAnswer()
{
    Client client;
    client.server.on("GET", "/a").answer(302, "here");
    client.server.on("GET", "/b").answer(300, "choose", {{"Location", "/c"}});
    const auto without = client.send({.path = u"a"_s});
    QVERIFY(without);
    QCOMPARE(without->status, 302);
    QCOMPARE(without->body, "here");
    const auto choice = client.send({.path = u"b"_s});
    QVERIFY(choice);
    QCOMPARE(choice->status, 300);
}

QTEST_GUILESS_MAIN(RedirectTest)
#include "tst_redirect.moc"
