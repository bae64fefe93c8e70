#include "tinyboard.h"
#include "wire.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The sign-in page, its codes, and the sessions that come of them.
class SignInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageOffersEverybody();
    void theHintedPersonStandsFirst();
    void whatComesFromOutsideIsNoMarkup();
    void withoutAStateThePageSaysWhatItIs();
    void theHeaderOfThePageMayBeAskedForAlone();
    void choosingLeadsBackToTheClientWithStateAndCode();
    void aCodeIsGoodOnce();
    void aCodeIsGoodForTenMinutes();
    void anUnknownPersonGetsNoCode();
    void anExchangeIsRefusedWithASentence_data();
    void anExchangeIsRefusedWithASentence();
    void aSessionTellsAndLasts();
    void signingOutEndsOneSession();
    void aRevokedPersonIsSignedOutEverywhere();
    void neitherTokensNorCodesAreKeptReadable();
};

namespace {

constexpr auto form = "application/x-www-form-urlencoded";

QString codeIn(const Reply &reply)
{
    return QUrlQuery(QUrl(QString::fromUtf8(reply.location))).queryItemValue(u"code"_s);
}

Reply choose(TinyBoard &board, const QString &email)
{
    return board.stranger().post(u"/signin"_s, "state=s&email=" + email.toUtf8(), form);
}

Reply exchange(TinyBoard &board, const QString &code)
{
    return board.stranger().post(u"/api/login/exchange"_s, QJsonObject{{u"code"_s, code}, {u"device"_s, u"a test"_s}});
}

} // namespace

void SignInTest::thePageOffersEverybody()
{
    TinyBoard board;
    const auto page = board.stranger().get(u"/signin?state=0123ABCD"_s);
    QCOMPARE(page.status, 200);
    QCOMPARE(page.type, "text/html; charset=utf-8");
    QVERIFY(page.body.contains("value=\"0123ABCD\""));
    QVERIFY(page.body.contains("<b>Mira Lund</b>mira@lanternhouse.example"));
    QVERIFY(page.body.contains("#7a4e9c"));
    QVERIFY(page.body.contains("prefers-color-scheme: dark"));
    QVERIFY(!page.body.contains("{{"));
}

void SignInTest::theHintedPersonStandsFirst()
{
    TinyBoard board;
    const auto page = board.stranger().get(u"/signin?state=s&hint=teo@lanternhouse.example"_s).body;
    QVERIFY(page.indexOf("teo@") < page.indexOf("mira@"));
    QCOMPARE(page.count(" autofocus"), 1);
    QVERIFY(!board.stranger().get(u"/signin?state=s&hint=ghost@lanternhouse.example"_s).body.contains(" autofocus"));
}

void SignInTest::whatComesFromOutsideIsNoMarkup()
{
    TinyBoard board;
    const auto page = board.stranger().get(u"/signin?state=%22%3E%3Cscript%3E{{people}}"_s).body;
    QVERIFY(!page.contains("<script"));
    QVERIFY(page.contains("&quot;&gt;&lt;script&gt;"));
    QVERIFY(page.contains("<b>Teo &lt;Ott&gt;</b>"));
}

void SignInTest::withoutAStateThePageSaysWhatItIs()
{
    TinyBoard board;
    for (const auto &path : {u"/signin"_s, u"/"_s, u"/signin?state="_s}) {
        const auto page = board.stranger().get(path);
        QCOMPARE(page.status, 200);
        QVERIFY(page.body.contains("press the button in Vexal"));
        QVERIFY(!page.body.contains("<form"));
    }
}

void SignInTest::theHeaderOfThePageMayBeAskedForAlone()
{
    TinyBoard board;
    Wire wire(board->url().port());
    QVERIFY(wire.send("HEAD / HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n"));
    const QByteArray answer = wire.answer();
    QCOMPARE(Wire::status(answer), 200);
    QVERIFY(answer.contains("Content-Type: text/html"));
    QVERIFY(answer.endsWith("\r\n\r\n"));
}

void SignInTest::choosingLeadsBackToTheClientWithStateAndCode()
{
    TinyBoard board;
    const QByteArray body = "state=a%26b%3Dc%20%2B&email=teo%40lanternhouse.example";
    Wire wire(board->port()); // a client of httplib would decode what it shows
    QVERIFY(wire.send("POST /signin HTTP/1.1\r\nHost: localhost\r\nContent-Type: application/x-www-form-urlencoded\r\n"
                      "Content-Length: " +
                      QByteArray::number(body.size()) + "\r\n\r\n" + body));
    const auto answer = wire.answer();
    QCOMPARE(Wire::status(answer), 303);
    const auto at = answer.indexOf("Location: ") + 10;
    const QUrl url(QString::fromUtf8(answer.mid(at, answer.indexOf("\r\n", at) - at)), QUrl::StrictMode);
    QCOMPARE(url.scheme(), u"vexal"_s);
    QCOMPARE(url.host(), u"signed-in"_s);
    QCOMPARE(QUrlQuery(url).queryItemValue(u"state"_s, QUrl::FullyDecoded), u"a&b=c +"_s);
    QVERIFY(QUrlQuery(url).queryItemValue(u"code"_s).size() >= 40);
    QVERIFY(answer.contains("Back to Vexal"));
}

void SignInTest::aCodeIsGoodOnce()
{
    TinyBoard board;
    const auto code = codeIn(choose(board, TinyBoard::teoEmail));
    const auto first = exchange(board, code);
    QCOMPARE(first.status, 200);
    QCOMPARE(first.as<SignInAnswer>().me.email, TinyBoard::teoEmail);
    const auto second = exchange(board, code);
    QCOMPARE(second.status, 400);
    QCOMPARE(second.error(), u"That sign-in is no longer good. Sign in again."_s);
    QCOMPARE(Visitor(board->port(), first.as<SignInAnswer>().token).get(u"/api/state"_s).status, 200);
}

void SignInTest::aCodeIsGoodForTenMinutes()
{
    TinyBoard board;
    const auto inTime = codeIn(choose(board, TinyBoard::teoEmail));
    const auto late = codeIn(choose(board, TinyBoard::teoEmail));
    board.now = board.now + 600'000;
    QCOMPARE(exchange(board, inTime).status, 200);
    board.now = board.now + 1;
    QCOMPARE(exchange(board, late).status, 400);
}

void SignInTest::anUnknownPersonGetsNoCode()
{
    TinyBoard board;
    for (const auto *body :
         {"state=s&email=ghost@lanternhouse.example", "state=s", "email=teo@lanternhouse.example", ""}) {
        const auto reply = board.stranger().post(u"/signin"_s, body, form);
        QCOMPARE(reply.status, 400);
        QVERIFY(reply.location.isEmpty());
    }
}

void SignInTest::anExchangeIsRefusedWithASentence_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("code");
    QTest::newRow("no code") << QByteArray(R"({"device":"x"})");
    QTest::newRow("a number") << QByteArray(R"({"code":1,"device":"x"})");
    QTest::newRow("a wrong code") << QByteArray(R"({"code":"abc","device":"x"})");
    QTest::newRow("an empty code") << QByteArray(R"({"code":""})");
}

void SignInTest::anExchangeIsRefusedWithASentence()
{
    QFETCH(QByteArray, body);
    TinyBoard board;
    const auto reply = board.stranger().post(u"/api/login/exchange"_s, body);
    QCOMPARE(reply.status, 400);
    QVERIFY(reply.error().endsWith(u'.'));
}

void SignInTest::aSessionTellsAndLasts()
{
    QTemporaryDir data;
    QString token;
    {
        TinyBoard board(data.path());
        Visitor visitor(board->port());
        QVERIFY(visitor.signIn(TinyBoard::miraEmail));
        QCOMPARE(visitor.board().events[0].kind, u"signin"_s);
        QCOMPARE(visitor.board().events[0].by, TinyBoard::miraEmail);
        token = board->signInAs(TinyBoard::miraEmail);
        QVERIFY(board->signInAs(u"ghost@lanternhouse.example"_s).isEmpty());
    }
    TinyBoard again(data.path());
    QCOMPARE(Visitor(again->port(), token).board().me.email, TinyBoard::miraEmail);
}

void SignInTest::signingOutEndsOneSession()
{
    TinyBoard board;
    auto here = board.mira();
    auto there = board.mira();
    QCOMPARE(here.post(u"/api/logout"_s).status, 200);
    QCOMPARE(here.get(u"/api/state"_s).status, 401);
    QCOMPARE(here.post(u"/api/logout"_s).status, 401);
    QCOMPARE(there.get(u"/api/state"_s).status, 200);
}

void SignInTest::aRevokedPersonIsSignedOutEverywhere()
{
    TinyBoard board;
    auto here = board.mira();
    auto there = board.mira();
    auto teo = board.teo();
    board->revoke(TinyBoard::miraEmail);
    QCOMPARE(here.get(u"/api/state"_s).status, 401);
    QCOMPARE(there.get(u"/api/state"_s).status, 401);
    QCOMPARE(teo.get(u"/api/state"_s).status, 200);
}

void SignInTest::neitherTokensNorCodesAreKeptReadable()
{
    QTemporaryDir data;
    TinyBoard board(data.path());
    const auto code = codeIn(choose(board, TinyBoard::teoEmail)).toUtf8();
    const auto token = board->signInAs(TinyBoard::teoEmail).toUtf8();
    QByteArray kept;
    for (const QString &name : QDir(data.path()).entryList(QDir::Files)) {
        QFile file(data.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        kept += file.readAll();
    }
    QVERIFY(kept.contains("teo@lanternhouse.example"));
    QVERIFY(!kept.contains(code) && !kept.contains(token));
    QVERIFY(!kept.contains(QByteArray::fromBase64(token, QByteArray::Base64UrlEncoding)));
}

QTEST_GUILESS_MAIN(SignInTest)
#include "tst_signin.moc"
