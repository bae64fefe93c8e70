#include "certificate.h"
#include "client.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using vexal::Failure;

namespace {

const Failure outOfReach = Failure::offline(u"Can't reach the Vexal server right now. Trying again…"_s);

} // namespace

/// The board server over TLS.
class TlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aServerThatIsVouchedForIsReached();
    void aServerThatNobodyVouchesForIsSentNothing();
    void aServerByAnotherNameIsSentNothing();
    void aPlainServerIsNotFollowedTo();
    void aPlainServerLeadsToASafeOneWithoutTheCredential();
    void aBodyCutShort();
    void aPostIsSentOnce();

private:
    Certificate m_certificate;
    std::unique_ptr<ScriptedServer> m_server;
    std::unique_ptr<Client> m_client;
};

void TlsTest::init()
{
    qputenv("SSL_CERT_FILE", m_certificate.file().toUtf8());
    m_server = std::make_unique<ScriptedServer>(m_certificate.server());
    m_client = std::make_unique<Client>();
    m_client->preferences.setValue(vexal::preference::serverURL, m_server->url().toString());
}

void TlsTest::cleanup()
{
    m_client.reset();
    m_server.reset();
    qunsetenv("SSL_CERT_FILE");
}

void TlsTest::aServerThatIsVouchedForIsReached()
{
    m_server->on("GET", "/api/state").answer(200, "board");
    for (int i = 0; i < 3; ++i) {
        const auto answer = m_client->send({.path = u"api/state"_s});
        QVERIFY(answer);
        QCOMPARE(answer->body, "board");
    }
    QCOMPARE(m_server->connections(), 1);
}

void TlsTest::aServerThatNobodyVouchesForIsSentNothing()
{
    qunsetenv("SSL_CERT_FILE");
    m_server->on("GET", "/x").answer(200);
    QCOMPARE(m_client->send({.path = u"x"_s}).failure(), outOfReach);
    QVERIFY(m_server->requests().isEmpty());
}

void TlsTest::aServerByAnotherNameIsSentNothing()
{
    m_client->preferences.setValue(vexal::preference::serverURL, u"https://localhost:%1"_s.arg(m_server->port()));
    QCOMPARE(m_client->send({.path = u"x"_s}).failure(), outOfReach);
    QVERIFY(m_server->requests().isEmpty());
}

void TlsTest::aPlainServerIsNotFollowedTo()
{
    ScriptedServer plain;
    m_server->on("GET", "/x").answer(302, {}, {{"Location", plain.url().toEncoded() + "/x"}});
    QCOMPARE(m_client->send({.path = u"x"_s}).failure(), outOfReach);
    QCOMPARE(plain.connections(), 0);
}

void TlsTest::aPlainServerLeadsToASafeOneWithoutTheCredential()
{
    Client client;
    client.server.on("GET", "/x").answer(302, {}, {{"Location", m_server->url().toEncoded() + "/x"}});
    m_server->on("GET", "/x").answer(200, "safe");
    QCOMPARE(client.send({.path = u"x"_s})->body, "safe");
    QVERIFY(!m_server->requests().first().header("Authorization"));
}

void TlsTest::aBodyCutShort()
{
    m_server->on("GET", "/x").answer(Answer(200, QByteArray(100'000, 'x')).cutAfter(50'000));
    QVERIFY(!m_client->send({.path = u"x"_s}));
    m_server->on("GET", "/x").answer(Answer(200, QByteArray(100'000, 'x')).chunked(1000).resetAfter(50'000));
    QVERIFY(!m_client->send({.path = u"x"_s}));
}

void TlsTest::aPostIsSentOnce()
{
    m_server->on("POST", "/x").answer(Answer::closed());
    QVERIFY(!m_client->send({.path = u"x"_s, .method = "POST"}));
    QCOMPARE(m_server->requests().size(), 1);
}

QTEST_GUILESS_MAIN(TlsTest)
#include "tst_tls.moc"
