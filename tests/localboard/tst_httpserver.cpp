#include "httpserver.h"
#include "loopback.h"
#include "wire.h"

#include <QTest>

#include <chrono>
#include <memory>
#include <vector>

using namespace std::chrono_literals;
using namespace vexal;
using namespace vexal::local;

namespace {

/// A server that greets, and says back what it is told.
struct Greeter : HttpServer
{
    explicit Greeter(HttpBounds bounds = {})
        : HttpServer(bounds)
    {
        Get("/hello", [](const auto &, auto &response) { response.set_content("hello", "text/plain"); });
        Get("/long",
            [](const auto &, auto &response) { response.set_content(std::string(50'000'000, 'x'), "text/plain"); });
        Get("/throw", [](const auto &, auto &) { throw std::runtime_error("secret"); });
        Post("/echo", [](const auto &request, auto &response) { response.set_content(request.body, "text/plain"); });
        opened = open("127.0.0.1", 0);
    }
    bool opened = false;
};

QByteArray get(const QByteArray &path, const QByteArray &headers = {})
{
    return "GET " + path + " HTTP/1.1\r\nHost: localhost\r\n" + headers + "\r\n";
}

QByteArray post(const QByteArray &headers, const QByteArray &body = {})
{
    return "POST /echo HTTP/1.1\r\nHost: localhost\r\n" + headers + "\r\n" + body;
}

} // namespace

class HttpServerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneConnectionServesManyRequests();
    void requestsSentTogetherAreAnsweredInOrder();
    void aPostWithoutALengthHasNoBody();
    void aRefusalCarriesASentence_data();
    void aRefusalCarriesASentence();
    void afterABodyThatWasNotReadNothingIsTakenForARequest();
    void aHeaderThatDribblesIsGivenUp();
    void aBodyThatDribblesIsGivenUp();
    void aClientThatReadsNothingIsGivenUp();
    void anAddressInUseIsRefused();
    void moreConnectionsThanThreadsAreAllServed();
    void closingFreesTheAddressAtOnce();
    void anExceptionSaysNothingOfItself();
    void onLoopbackItAnswersToItsOwnNamesOnly_data();
    void onLoopbackItAnswersToItsOwnNamesOnly();
    void aHostLoopsBackWhenItIsThisMachineForSure();
};

void HttpServerTest::oneConnectionServesManyRequests()
{
    Greeter server;
    QVERIFY(server.opened);
    Wire wire(server.port());
    for (int i = 0; i < 50; ++i) {
        QVERIFY(wire.send(get("/hello")));
        QVERIFY(wire.answer().endsWith("\r\n\r\nhello"));
    }
}

void HttpServerTest::requestsSentTogetherAreAnsweredInOrder()
{
    Greeter server;
    Wire wire(server.port());
    QVERIFY(wire.send(post("Content-Length: 3\r\n", "one") + get("/hello") + post("Content-Length: 3\r\n", "two")));
    QVERIFY(wire.answer().endsWith("one"));
    QVERIFY(wire.answer().endsWith("hello"));
    QVERIFY(wire.answer().endsWith("two"));
}

void HttpServerTest::aPostWithoutALengthHasNoBody()
{
    Greeter server;
    Wire wire(server.port());
    QVERIFY(wire.send(post({}) + get("/hello")));
    QCOMPARE(Wire::status(wire.answer()), 200);
    QVERIFY(wire.answer().endsWith("hello"));
}

void HttpServerTest::aRefusalCarriesASentence_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("status");

    QTest::newRow("unknown path") << get("/nothing") << 404;
    QTest::newRow("unknown method") << QByteArray("BREW / HTTP/1.1\r\n\r\n") << 400;
    QTest::newRow("not HTTP") << QByteArray("\x16\x03\x01 hello there\r\n\r\n") << 400;
    QTest::newRow("a newer HTTP") << QByteArray("PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n") << 400;
    QTest::newRow("long target") << get('/' + QByteArray(4000, 'a')) << 414;
    QTest::newRow("target beyond httplib's bound") << get('/' + QByteArray(9000, 'a')) << 414;
    QTest::newRow("large header") << get("/hello", "X: " + QByteArray(40'000, 'a') + "\r\n") << 431;
    QTest::newRow("many headers") << get("/hello", QByteArray("A: b\r\n").repeated(10'000)) << 431;
    QTest::newRow("chunks") << post("Transfer-Encoding: chunked\r\n", "3\r\none\r\n0\r\n\r\n") << 411;
    QTest::newRow("length and chunks") << post("Content-Length: 3\r\nTransfer-Encoding: chunked\r\n", "0\r\n\r\n")
                                       << 411;
    QTest::newRow("two lengths") << post("Content-Length: 3\r\nContent-Length: 4\r\n", "one") << 400;
    QTest::newRow("length below 0") << post("Content-Length: -1\r\n") << 400;
    QTest::newRow("length in words") << post("Content-Length: three\r\n", "one") << 400;
    QTest::newRow("huge body announced") << post("Content-Length: 99999999999\r\n", "one") << 413;
    QTest::newRow("huge body sent") << post("Content-Length: 12000000\r\n", QByteArray(1'000'000, 'a')) << 413;
    QTest::newRow("packed body") << post("Content-Encoding: gzip\r\nContent-Length: 3\r\n", "one") << 415;
    QTest::newRow("body in parts") << post("Content-Type: multipart/form-data; boundary=x\r\nContent-Length: 3\r\n",
                                           "one")
                                   << 415;
    QTest::newRow("many ranges") << get("/nothing", "Range: bytes=0-0" + QByteArray(",1-1").repeated(2000) + "\r\n")
                                 << 404;
    QTest::newRow("broken range") << get("/nothing", "Range: bytes=1-1," + QByteArray(8000, '1') + "\r\n") << 416;
}

void HttpServerTest::aRefusalCarriesASentence()
{
    QFETCH(QByteArray, request);
    QFETCH(int, status);
    Greeter server;
    Wire wire(server.port());
    wire.send(request);
    const auto answer = wire.answer();
    QCOMPARE(Wire::status(answer), status);
    QVERIFY2(answer.contains("\r\n\r\n{\"error\":\""), answer);

    Wire next(server.port());
    QVERIFY(next.send(get("/hello")));
    QVERIFY(next.answer().endsWith("hello"));
}

void HttpServerTest::afterABodyThatWasNotReadNothingIsTakenForARequest()
{
    Greeter server;
    for (const auto &unread : {post("Transfer-Encoding: chunked\r\n"), post("Content-Length: 99999999\r\n")}) {
        Wire wire(server.port());
        QVERIFY(wire.send(unread + get("/hello")));
        QVERIFY(Wire::status(wire.answer()) >= 400);
        QVERIFY(wire.isHungUp());
    }
}

void HttpServerTest::aHeaderThatDribblesIsGivenUp()
{
    Greeter server({.patience = {.head = 50ms}});
    Wire wire(server.port());
    QVERIFY(wire.send("GET /hello HTTP/1.1\r\nHost:"));
    QCOMPARE(Wire::status(wire.answer()), 408);
    QVERIFY(wire.isHungUp());
}

void HttpServerTest::aBodyThatDribblesIsGivenUp()
{
    Greeter server({.patience = {.body = 50ms}});
    Wire wire(server.port());
    QVERIFY(wire.send(post("Content-Length: 10\r\n", "one")));
    QVERIFY(Wire::status(wire.answer()) >= 400);
    QVERIFY(wire.isHungUp());
}

void HttpServerTest::aClientThatReadsNothingIsGivenUp()
{
    Greeter server({.patience = {.stall = 50ms}});
    Wire deaf(server.port());
    QVERIFY(deaf.send(get("/long")));
    QTRY_COMPARE(server.connections(), 1u);
    QTRY_COMPARE(server.connections(), 0u);
    QVERIFY(deaf.answer().size() < 50'000'000);
}

void HttpServerTest::anAddressInUseIsRefused()
{
    Greeter first;
    HttpServer second;
    QVERIFY(!second.open("127.0.0.1", first.port()));
    HttpServer nowhere;
    QVERIFY(!nowhere.open("no.such.host.invalid", 1));
}

void HttpServerTest::moreConnectionsThanThreadsAreAllServed()
{
    Greeter server({.connections = 4});
    std::vector<std::unique_ptr<Wire>> wires;
    for (int i = 0; i < 40; ++i) {
        wires.push_back(std::make_unique<Wire>(server.port()));
        QVERIFY(wires.back()->send(get("/hello")));
        QVERIFY(wires.back()->answer().endsWith("hello"));
    }
}

void HttpServerTest::closingFreesTheAddressAtOnce()
{
    Greeter server;
    Wire idle(server.port());
    QVERIFY(idle.send(get("/hello")));
    QVERIFY(idle.answer().endsWith("hello"));
    server.close();
    QVERIFY(idle.isHungUp());

    HttpServer again;
    QVERIFY(again.open("127.0.0.1", server.port()));
}

void HttpServerTest::anExceptionSaysNothingOfItself()
{
    Greeter server;
    Wire wire(server.port());
    QVERIFY(wire.send(get("/throw")));
    const auto answer = wire.answer();
    QCOMPARE(Wire::status(answer), 500);
    QVERIFY(!answer.contains("secret"));
}

void HttpServerTest::onLoopbackItAnswersToItsOwnNamesOnly_data()
{
    QTest::addColumn<QByteArray>("headers");
    QTest::addColumn<int>("status");

    QTest::newRow("its address") << QByteArray("Host: 127.0.0.1\r\n") << 200;
    QTest::newRow("its address and a port") << QByteArray("Host: 127.0.0.1:8123\r\n") << 200;
    QTest::newRow("its name") << QByteArray("Host: LocalHost\r\n") << 200;
    QTest::newRow("its name and a port") << QByteArray("Host: localhost:1\r\n") << 200;
    QTest::newRow("its newer address") << QByteArray("Host: [::1]\r\n") << 200;
    QTest::newRow("its newer address and a port") << QByteArray("Host: [::1]:8123\r\n") << 200;
    QTest::newRow("a name that leads here") << QByteArray("Host: rebound.example\r\n") << 421;
    QTest::newRow("a name that begins so") << QByteArray("Host: 127.0.0.1.rebound.example:8123\r\n") << 421;
    QTest::newRow("another address") << QByteArray("Host: 10.0.0.1\r\n") << 421;
    QTest::newRow("no port") << QByteArray("Host: localhost:x\r\n") << 421;
    QTest::newRow("an open bracket") << QByteArray("Host: [::1\r\n") << 421;
    QTest::newRow("nothing") << QByteArray("Host:\r\n") << 421;
    QTest::newRow("no header") << QByteArray() << 421;
    QTest::newRow("two headers") << QByteArray("Host: localhost\r\nHost: rebound.example\r\n") << 421;
}

void HttpServerTest::onLoopbackItAnswersToItsOwnNamesOnly()
{
    QFETCH(QByteArray, headers);
    QFETCH(int, status);
    Greeter server;
    Wire wire(server.port());
    QVERIFY(wire.send("GET /hello HTTP/1.1\r\n" + headers + "\r\n"));
    const QByteArray answer = wire.answer();
    QCOMPARE(Wire::status(answer), status);
    QCOMPARE(answer.endsWith("hello"), status == 200);
    QCOMPARE(answer.contains("{\"error\":\"This board answers"), status == 421);
}

void HttpServerTest::aHostLoopsBackWhenItIsThisMachineForSure()
{
    for (const char *host : {"127.0.0.1", "127.9.8.7", "::1", "localhost", "LOCALHOST"})
        QVERIFY2(isLoopback(host), host);
    for (const char *host : {"", "0.0.0.0", "::", "10.0.0.1", "128.0.0.1", "fe80::1", "localhost.example", "here"})
        QVERIFY2(!isLoopback(host), host);
}

QTEST_APPLESS_MAIN(HttpServerTest)
#include "tst_httpserver.moc"
