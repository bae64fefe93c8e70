#include "client.h"
#include "deployment.h"
#include "filepreferences.h"
#include "useragent.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using vexal::Failure;

namespace {

const Failure outOfReach = Failure::offline(u"Can't reach the Vexal server right now. Trying again…"_s);
const QString refusal = u"The server didn't take that. Try again in a moment."_s;

} // namespace

/// What goes out, and what an answer is called.
class ApiTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFetchByteForByte();
    void aPostByteForByte();
    void aPostWithoutABodyByteForByte();
    void aPutOfRawBytesByteForByte();
    void rawBytesWithoutATypeAreAnOctetStream();
    void rawBytesOutrankJson();
    void jsonThatCannotBeWrittenIsNotSent_data();
    void jsonThatCannotBeWrittenIsNotSent();
    void withoutATokenNothingIsAuthorised();
    void nobodyIsNamedInTheBase();
    void theTokenIsReadAtEveryRequest();
    void aTokenForgottenRightAfterSendingIsStillSent();
    void theUserAgentWithoutAVersion();
    void noCookieIsKept();
    void nothingIsCached();
    void loopbackIsReachedWithoutAProxy();
    void theSystemsProxyIsUsed();
    void theCredentialIsNotShownToTheProxyOfASafeServer();

    void theBaseIsReadAtEveryRequest();
    void aBaseEditedFromOutsideCounts();
    void aValueThatIsNoUrlFallsBackToTheDefault();
    void withoutAPreferenceTheDefaultCounts();
    void aBaseThatIsNoWebServerAnswersNoHttp();
    void anIdArrivesAsOneComponent();
    void aPathThatLeadsElsewhereIsNotSent();

    void aSuccessIsTheBytesAndTheHeaders();
    void anyStatusBelow400IsASuccess_data();
    void anyStatusBelow400IsASuccess();
    void unchangedIsASuccessWithoutABody();
    void unchangedWithALengthIsNotWaitedFor();
    void aRefusalInWords_data();
    void aRefusalInWords();
    void aRefusalWithoutWords_data();
    void aRefusalWithoutWords();
    void anUnknownCredentialIsSignedOut_data();
    void anUnknownCredentialIsSignedOut();

    void aSenderThatGoesIsNotTold();
    void aSenderThatGoesLetsGoOfWhatItsCallbackHolds();
    void aSenderThatGoesEndsTheRequest();
    void aSenderMayGoWhenToldAndSendAgain();
    void theClientMayGoWithRequestsUnderWay();
    void manyRequestsShareFewConnections();
    void whatIsInTheBackgroundLeavesRoomForOthers();
    void whatIsInTheBackgroundLetsOthersGoFirst();
    void fetchesInTurnShareOneConnection();
    void fewConnectionsAreKept();
};

void ApiTest::aFetchByteForByte()
{
    Client client;
    client.server.on("GET", "/api/state").answer(200);
    QVERIFY(client.send({.path = u"api/state"_s, .entityTag = u"\"e-1\""_s}));
    const QByteArray expected = "GET /api/state HTTP/1.1\r\n"
                                "Host: 127.0.0.1:" +
                                QByteArray::number(client.server.port()) +
                                "\r\n"
                                "Accept: */*\r\n"
                                "User-Agent: Vexal-Mac/" +
                                vexal::deployment::version.toLatin1() +
                                "\r\n"
                                "Accept-Encoding: gzip\r\n"
                                "Cache-Control: no-cache\r\n"
                                "Authorization: Bearer token\r\n"
                                "If-None-Match: \"e-1\"\r\n"
                                "\r\n";
    QCOMPARE(client.server.requests().first().bytes, expected);
}

void ApiTest::aPostByteForByte()
{
    Client client;
    client.server.on("POST", "/api/jobs").answer(200);
    QVERIFY(client.send({.path = u"api/jobs"_s,
                         .method = "POST",
                         .json = QJsonObject{{u"kind"_s, u"report"_s}, {u"file_ids"_s, QJsonArray{u"ä"_s, u"b"_s}}}}));
    const QByteArray expected = "POST /api/jobs HTTP/1.1\r\n"
                                "Host: 127.0.0.1:" +
                                QByteArray::number(client.server.port()) +
                                "\r\n"
                                "Accept: */*\r\n"
                                "User-Agent: Vexal-Mac/" +
                                vexal::deployment::version.toLatin1() +
                                "\r\n"
                                "Accept-Encoding: gzip\r\n"
                                "Cache-Control: no-cache\r\n"
                                "Content-Type: application/json\r\n"
                                "Authorization: Bearer token\r\n"
                                "Content-Length: 39\r\n"
                                "\r\n"
                                "{\"file_ids\":[\"\xc3\xa4\",\"b\"],\"kind\":\"report\"}";
    QCOMPARE(client.server.requests().first().bytes, expected);
}

void ApiTest::aPostWithoutABodyByteForByte()
{
    Client client;
    client.server.on("POST", "/api/jobs/j1/stop").answer(200);
    QVERIFY(client.send({.path = u"api/jobs/j1/stop"_s, .method = "POST"}));
    const Received request = client.server.requests().first();
    QCOMPARE(request.header("Content-Length"), "0");
    QVERIFY(!request.header("Content-Type"));
    QCOMPARE(request.body, QByteArray());
}

void ApiTest::aPutOfRawBytesByteForByte()
{
    Client client;
    client.server.on("PUT", "/api/me/photo").answer(200);
    const QByteArray photo("\xff\xd8\0\r\n\r\n\xff\xd9", 9);
    QVERIFY(client.send({.path = u"api/me/photo"_s, .method = "PUT", .raw = photo, .contentType = u"image/jpeg"_s}));
    const Received request = client.server.requests().first();
    QCOMPARE(request.method, "PUT");
    QCOMPARE(request.body, photo);
    QCOMPARE(request.header("Content-Type"), "image/jpeg");
    QCOMPARE(request.header("Content-Length"), "9");
}

void ApiTest::rawBytesWithoutATypeAreAnOctetStream()
{
    Client client;
    client.server.on("PUT", "/x").answer(200);
    QVERIFY(client.send({.path = u"x"_s, .method = "PUT", .raw = QByteArray()}));
    QCOMPARE(client.server.requests().first().header("Content-Type"), "application/octet-stream");
}

void ApiTest::rawBytesOutrankJson()
{
    Client client;
    client.server.on("POST", "/x").answer(200);
    QVERIFY(client.send({.path = u"x"_s,
                         .method = "POST",
                         .json = QJsonObject{{u"a"_s, 1}},
                         .raw = "raw",
                         .contentType = u"text/plain"_s}));
    QCOMPARE(client.server.requests().first().body, "raw");
    QCOMPARE(client.server.requests().first().header("Content-Type"), "text/plain");
}

void ApiTest::jsonThatCannotBeWrittenIsNotSent_data()
{
    QTest::addColumn<QJsonObject>("json");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << QJsonObject{{u"x"_s, nan}};
    QTest::newRow("endless, in a list") << QJsonObject{{u"x"_s, QJsonArray{1, infinity}}};
    QTest::newRow("deeper") << QJsonObject{
        {u"x"_s, QJsonObject{{u"y"_s, QJsonArray{QJsonObject{{u"z"_s, -infinity}}}}}}};
}

void ApiTest::jsonThatCannotBeWrittenIsNotSent()
{
    QFETCH(QJsonObject, json);
    Client client;
    const auto answer = client.send({.path = u"api/comments"_s, .method = "POST", .json = json});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), Failure::other());
    QCOMPARE(answer.failure().sentenceOr(u"own"_s), u"own"_s);
    QCOMPARE(client.server.connections(), 0);
}

void ApiTest::withoutATokenNothingIsAuthorised()
{
    Client client;
    client.credentials.forget();
    client.server.on("GET", "/api/state").answer(401);
    const auto answer = client.send({.path = u"api/state"_s});
    QVERIFY(!client.server.requests().first().header("Authorization"));
    QVERIFY(!answer);
    QCOMPARE(answer.failure().kind, Failure::Kind::SignedOut);
    QCOMPARE(answer.failure().sentence, u"You're signed out. Sign in again."_s);
}

void ApiTest::nobodyIsNamedInTheBase()
{
    Client client;
    client.credentials.forget();
    QUrl named = client.server.url();
    named.setUserInfo(u"mira:secret"_s);
    client.preferences.setValue(vexal::preference::serverURL, named.toString());
    client.server.on("GET", "/x").answer(200);
    QVERIFY(client.send({.path = u"x"_s}));
    QVERIFY(!client.server.requests().first().header("Authorization"));
    QVERIFY(!client.api.base().toString().contains("mira"_L1));
}

void ApiTest::theTokenIsReadAtEveryRequest()
{
    Client client;
    client.server.on("GET", "/x").answer(200);
    QVERIFY(client.send({.path = u"x"_s}));
    client.credentials.store(u"tökén"_s, &client.api, [] {});
    QVERIFY(client.send({.path = u"x"_s}));
    QCOMPARE(client.server.requests()[0].header("Authorization"), "Bearer token");
    QCOMPARE(client.server.requests()[1].header("Authorization"), "Bearer t\xc3\xb6k\xc3\xa9n");
}

void ApiTest::aTokenForgottenRightAfterSendingIsStillSent()
{
    Client client;
    client.server.on("POST", "/api/logout").answer(200);
    QObject context;
    client.api.send({.path = u"api/logout"_s, .method = "POST"}, &context, [](const auto &) {});
    client.credentials.forget();
    QTRY_COMPARE(client.server.requests().size(), 1);
    QCOMPARE(client.server.requests().first().header("Authorization"), "Bearer token");
}

void ApiTest::theUserAgentWithoutAVersion()
{
    QCOMPARE(vexal::userAgent(u""), "Vexal-Mac/1.0");
    QCOMPARE(vexal::userAgent(u"2.3"), "Vexal-Mac/2.3");
}

void ApiTest::noCookieIsKept()
{
    Client client;
    client.server.on("GET", "/x").answer(200, {}, {{"Set-Cookie", "a=b; Path=/"}});
    QVERIFY(client.send({.path = u"x"_s}));
    QVERIFY(client.send({.path = u"x"_s}));
    QVERIFY(!client.server.requests()[1].header("Cookie"));
}

void ApiTest::nothingIsCached()
{
    Client client;
    const Answer::Headers lasting{{"Cache-Control", "max-age=3600"}, {"Etag", "\"e\""}};
    client.server.on("GET", "/x").answer(200, "one", lasting).answer(200, "two", lasting);
    QCOMPARE(client.send({.path = u"x"_s})->body, "one");
    QCOMPARE(client.send({.path = u"x"_s})->body, "two");
    QVERIFY(!client.server.requests()[1].header("If-None-Match"));
}

void ApiTest::loopbackIsReachedWithoutAProxy()
{
    ScriptedServer proxy;
    qputenv("http_proxy", proxy.url().toEncoded());
    Client client;
    client.server.on("GET", "/x").answer(200);
    QVERIFY(client.send({.path = u"x"_s}));
    QCOMPARE(proxy.connections(), 0);
    qunsetenv("http_proxy");
}

void ApiTest::theSystemsProxyIsUsed()
{
    ScriptedServer proxy;
    proxy.on("GET", "http://board.example/api/state").answer(200, "board");
    qputenv("http_proxy", proxy.url().toEncoded());
    Client client;
    client.preferences.setValue(vexal::preference::serverURL, u"http://board.example"_s);
    const auto answer = client.send({.path = u"api/state"_s});
    qunsetenv("http_proxy");
    QVERIFY(answer);
    QCOMPARE(answer->body, "board");
}

void ApiTest::theCredentialIsNotShownToTheProxyOfASafeServer()
{
    ScriptedServer proxy;
    proxy.on("CONNECT", "board.example:443").answer(403);
    qputenv("https_proxy", proxy.url().toEncoded());
    Client client;
    client.preferences.setValue(vexal::preference::serverURL, u"https://board.example"_s);
    const auto answer = client.send({.path = u"api/state"_s});
    qunsetenv("https_proxy");
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), outOfReach);
    QCOMPARE(proxy.requests().size(), 1);
    QVERIFY(!proxy.requests().first().bytes.contains("token"));
}

void ApiTest::theBaseIsReadAtEveryRequest()
{
    Client client;
    ScriptedServer other;
    client.server.on("GET", "/x").answer(200, "one");
    other.on("GET", "/team/x").answer(200, "other");
    QCOMPARE(client.send({.path = u"x"_s})->body, "one");
    client.preferences.setValue(vexal::preference::serverURL, other.url().toString() + "/team/"_L1);
    QCOMPARE(client.send({.path = u"x"_s})->body, "other");
}

void ApiTest::aBaseEditedFromOutsideCounts()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"Vexal.conf"_s);
    vexal::FilePreferences preferences(path);
    const vexal::MemoryCredentialStore credentials;
    const SaidPresence presence;
    const vexal::API api(preferences, credentials, presence);
    QCOMPARE(api.base(), QUrl(vexal::deployment::serverURL.toString()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nServerURL=http://127.0.0.1:8123/team\n");
    file.close();
    QCOMPARE(api.base(), QUrl(u"http://127.0.0.1:8123/team"_s));
}

void ApiTest::aValueThatIsNoUrlFallsBackToTheDefault()
{
    Client client;
    for (const QString &value : {u"not a url"_s, u"hello"_s, u"https://b example"_s, QString()}) {
        client.preferences.setValue(vexal::preference::serverURL, value);
        QCOMPARE(client.api.base(), QUrl(vexal::deployment::serverURL.toString()));
    }
}

void ApiTest::withoutAPreferenceTheDefaultCounts()
{
    Client client;
    client.preferences.remove(vexal::preference::serverURL);
    QCOMPARE(client.api.base(), QUrl(vexal::deployment::serverURL.toString()));
}

void ApiTest::aBaseThatIsNoWebServerAnswersNoHttp()
{
    QTemporaryDir folder;
    Client client;
    client.preferences.setValue(vexal::preference::serverURL, "file://"_L1 + folder.path());
    const auto answer = client.send({.path = u"photo"_s, .method = "PUT", .raw = "x"});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), Failure::offline(u"Can't reach the Vexal server right now."_s));
    QVERIFY(!QFile::exists(folder.filePath(u"photo"_s)));
}

void ApiTest::anIdArrivesAsOneComponent()
{
    Client client;
    client.server.on("GET", "/api/files/a%3Fb%23c%2520").answer(200, "file");
    const auto answer = client.send({.path = u"api/files/a?b#c%20"_s});
    QVERIFY(answer);
    QCOMPARE(answer->body, "file");
}

void ApiTest::aPathThatLeadsElsewhereIsNotSent()
{
    Client client;
    for (const QString &path : {u"api/files/.."_s, u"api/files/."_s, u"api/../secret"_s}) {
        const auto answer = client.send({.path = path});
        QVERIFY(!answer);
        QCOMPARE(answer.failure(), outOfReach);
    }
    QCOMPARE(client.server.connections(), 0);
}

void ApiTest::aSuccessIsTheBytesAndTheHeaders()
{
    Client client;
    client.server.on("GET", "/api/state").answer(200, "{\"rev\":1}", {{"ETag", "\"r1\""}, {"X-Other", "a"}});
    const auto answer = client.send({.path = u"api/state"_s});
    QVERIFY(answer);
    QCOMPARE(answer->status, 200);
    QCOMPARE(answer->body, "{\"rev\":1}");
    QCOMPARE(answer->entityTag(), u"\"r1\""_s);
    QCOMPARE(answer->header("x-other"), u"a"_s);
    QVERIFY(!answer->header("X-Missing"));
    QVERIFY(!answer->unchanged());
}

void ApiTest::anyStatusBelow400IsASuccess_data()
{
    QTest::addColumn<int>("status");
    for (int status : {200, 201, 202, 204, 206, 300, 301, 304, 307, 399})
        QTest::addRow("%d", status) << status;
}

void ApiTest::anyStatusBelow400IsASuccess()
{
    QFETCH(int, status);
    Client client;
    client.server.on("GET", "/x").answer(status);
    const auto answer = client.send({.path = u"x"_s});
    QVERIFY(answer);
    QCOMPARE(answer->status, status);
    QVERIFY(!answer->entityTag());
}

void ApiTest::unchangedIsASuccessWithoutABody()
{
    Client client;
    client.server.on("GET", "/x").answer(304, {}, {{"Etag", "\"r1\""}, {"Content-Encoding", "gzip"}});
    const auto answer = client.send({.path = u"x"_s, .entityTag = u"\"r1\""_s});
    QVERIFY(answer);
    QVERIFY(answer->unchanged());
    QCOMPARE(answer->body, QByteArray());
    QCOMPARE(answer->entityTag(), u"\"r1\""_s);
}

void ApiTest::unchangedWithALengthIsNotWaitedFor()
{
    Client client;
    client.server.on("GET", "/x").answer(304, {}, {{"Content-Length", "1000"}});
    const auto answer = client.send({.path = u"x"_s});
    QVERIFY(answer);
    QVERIFY(answer->unchanged());
}

void ApiTest::aRefusalInWords_data()
{
    QTest::addColumn<int>("status");
    for (int status : {400, 403, 404, 407, 409, 413, 418, 429, 500, 501, 502, 503, 599})
        QTest::addRow("%d", status) << status;
}

void ApiTest::aRefusalInWords()
{
    QFETCH(int, status);
    Client client;
    client.server.on("POST", "/x").answer(status, R"({"ok": false, "error": "Not “now”."})");
    const auto answer = client.send({.path = u"x"_s, .method = "POST", .json = QJsonObject()});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), Failure::server(u"Not “now”."_s));
    QCOMPARE(answer.failure().sentenceOr(u"own"_s), u"Not “now”."_s);
    QCOMPARE(client.server.requests().size(), 1);
}

void ApiTest::aRefusalWithoutWords_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a page") << QByteArray("<html><body>502 Bad Gateway</body></html>");
    QTest::newRow("a list") << QByteArray(R"([{"error": "x"}])");
    QTest::newRow("a string") << QByteArray(R"("error")");
    QTest::newRow("another key") << QByteArray(R"({"message": "x"})");
    QTest::newRow("no string") << QByteArray(R"({"error": {"text": "x"}})");
    QTest::newRow("null") << QByteArray(R"({"error": null})");
    QTest::newRow("a number") << QByteArray(R"({"error": 5})");
    QTest::newRow("an empty string") << QByteArray(R"({"error": ""})");
    QTest::newRow("blanks") << QByteArray(R"({"error": " \n"})");
    QTest::newRow("more than anybody reads") << R"({"error": ")" + QByteArray(vexal::limit::refusal, 'x') + R"("})";
    QTest::newRow("broken") << QByteArray(R"({"error": "x")");
}

void ApiTest::aRefusalWithoutWords()
{
    QFETCH(QByteArray, body);
    Client client;
    client.server.on("GET", "/x").answer(502, body);
    const auto answer = client.send({.path = u"x"_s});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), Failure::server(refusal));
}

void ApiTest::anUnknownCredentialIsSignedOut_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("challenge");
    for (const char *method : {"GET", "POST", "PUT"}) {
        for (const char *challenge :
             {"", "Bearer", "Basic realm=\"x\"", "Negotiate", "NTLM", "Digest realm=\"x\", nonce=\"y\""})
            QTest::addRow("%s %s", method, challenge) << QByteArray(method) << QByteArray(challenge);
    }
}

void ApiTest::anUnknownCredentialIsSignedOut()
{
    QFETCH(QByteArray, method);
    QFETCH(QByteArray, challenge);
    Client client;
    Answer::Headers headers;
    if (!challenge.isEmpty())
        headers.append({"WWW-Authenticate", challenge});
    client.server.on(method, "/x").answer(401, R"({"error": "Nobody reads this."})", headers);
    const auto answer = client.send({.path = u"x"_s, .method = method});
    QVERIFY(!answer);
    QCOMPARE(answer.failure(), Failure::signedOut());
    QCOMPARE(answer.failure().sentence, u"You're signed out. Sign in again."_s);
    QCOMPARE(client.server.requests().size(), 1);
}

void ApiTest::aSenderThatGoesIsNotTold()
{
    Client client;
    Gate gate;
    client.server.on("GET", "/x").answer(Answer(200).heldBy(gate));
    int told = 0;
    auto context = std::make_unique<QObject>();
    client.api.send({.path = u"x"_s}, context.get(), [&told](const auto &) { ++told; });
    QTRY_COMPARE(client.server.requests().size(), 1);
    client.api.send({.path = u".."_s}, context.get(), [&told](const auto &) { ++told; });
    context.reset();
    gate.open();
    client.server.on("GET", "/y").answer(200);
    QVERIFY(client.send({.path = u"y"_s}));
    QCOMPARE(told, 0);
}

void ApiTest::aSenderThatGoesLetsGoOfWhatItsCallbackHolds()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer::never());
    const auto held = std::make_shared<int>();
    auto context = std::make_unique<QObject>();
    client.api.send({.path = u"x"_s}, context.get(), [held](const auto &) {});
    QTRY_COMPARE(client.server.requests().size(), 1);
    QCOMPARE(held.use_count(), 2);
    context.reset();
    QCOMPARE(held.use_count(), 1);
}

void ApiTest::aSenderThatGoesEndsTheRequest()
{
    Client client;
    client.server.on("GET", "/x").answer(Answer::never());
    auto context = std::make_unique<QObject>();
    client.api.send({.path = u"x"_s}, context.get(), [](const auto &) {});
    QTRY_COMPARE(client.server.requests().size(), 1);
    context.reset();
    QTRY_COMPARE(client.server.openConnections(), 0);
}

void ApiTest::aSenderMayGoWhenToldAndSendAgain()
{
    Client client;
    client.server.on("GET", "/x").answer(200);
    int told = 0;
    auto *context = new QObject;
    client.api.send({.path = u"x"_s}, context, [&client, &told, context](const auto &) {
        ++told;
        client.api.send({.path = u"x"_s}, &client.api, [&told](const auto &) { ++told; });
        delete context;
    });
    QTRY_COMPARE(told, 2);
}

void ApiTest::theClientMayGoWithRequestsUnderWay()
{
    QObject context;
    int told = 0;
    ScriptedServer server;
    server.on("GET", "/x").answer(Answer::never());
    {
        MemoryPreferences preferences;
        preferences.setValue(vexal::preference::serverURL, server.url().toString());
        const vexal::MemoryCredentialStore credentials;
        const SaidPresence presence;
        vexal::API api(preferences, credentials, presence);
        for (int i = 0; i < 20; ++i)
            api.send({.path = u"x"_s}, &context, [&told](const auto &) { ++told; });
        QTRY_COMPARE(server.requests().size(), 6);
    }
    QTRY_COMPARE(server.openConnections(), 0);
    QCOMPARE(told, 0);
}

void ApiTest::manyRequestsShareFewConnections()
{
    Client client;
    Gate gate;
    client.server.on("GET", "/x").answer(Answer(200).heldBy(gate));
    int answered = 0;
    for (int i = 0; i < 20; ++i)
        client.api.send({.path = u"x"_s}, this, [&answered](const auto &answer) { answered += bool(answer); });
    QTRY_COMPARE(client.server.requests().size(), 6);
    gate.open();
    QTRY_COMPARE(answered, 20);
    QCOMPARE(client.server.connections(), 6);
}

void ApiTest::whatIsInTheBackgroundLeavesRoomForOthers()
{
    Client client;
    Gate gate;
    client.server.on("GET", "/picture").answer(Answer(200).heldBy(gate));
    client.server.on("POST", "/action").answer(200);
    int pictures = 0;
    for (int i = 0; i < 20; ++i)
        client.api.send({.path = u"picture"_s, .background = true}, this, [&pictures](const auto &) { ++pictures; });
    QTRY_COMPARE(client.server.requests().size(), 5);
    QVERIFY(client.send({.path = u"action"_s, .method = "POST"}));
    QCOMPARE(pictures, 0);
    gate.open();
    QTRY_COMPARE(pictures, 20);
}

void ApiTest::whatIsInTheBackgroundLetsOthersGoFirst()
{
    Client client;
    Gate gate;
    client.server.on("GET", "/picture").answer(Answer(200).heldBy(gate));
    client.server.on("GET", "/board").answer(Answer(200).heldBy(gate));
    int answered = 0;
    const auto count = [&answered](const auto &) { ++answered; };
    for (int i = 0; i < 10; ++i)
        client.api.send({.path = u"picture"_s, .background = true}, this, count);
    for (int i = 0; i < 10; ++i)
        client.api.send({.path = u"board"_s}, this, count);
    QTRY_COMPARE(client.server.requests().size(), 6);
    gate.open();
    QTRY_COMPARE(answered, 20);
    for (int i = 6; i < 15; ++i)
        QCOMPARE(client.server.requests()[i].target, "/board");
}

void ApiTest::fetchesInTurnShareOneConnection()
{
    Client client;
    client.server.on("GET", "/x").answer(200, "x");
    for (int i = 0; i < 20; ++i)
        QVERIFY(client.send({.path = u"x"_s}));
    QCOMPARE(client.server.connections(), 1);
}

void ApiTest::fewConnectionsAreKept()
{
    Client client;
    client.server.on("POST", "/x").answer(200, "x");
    for (int i = 0; i < 20; ++i)
        QVERIFY(client.send({.path = u"x"_s, .method = "POST"}));
    QTRY_VERIFY(client.server.openConnections() <= 6);
}

QTEST_GUILESS_MAIN(ApiTest)
#include "tst_api.moc"
