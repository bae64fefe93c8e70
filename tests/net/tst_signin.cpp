#include "client.h"
#include "deployment.h"
#include "signin.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QUrlQuery>

#include <memory>

using namespace Qt::StringLiterals;
using vexal::Failure;
using vexal::Me;
using vexal::Result;
using vexal::SignIn;
using Arrival = vexal::SignIn::Arrival;

namespace {

/// Notes the pages that it was asked to show.
class NotingBrowser : public vexal::Browser
{
public:
    void openPrivately(const QUrl &page) override { pages += page; }

    QList<QUrl> pages;
};

/// Holds what it is given, and says that it is kept when the test lets it.
class SlowCredentialStore : public vexal::CredentialStore
{
public:
    QString token() const override { return m_token; }
    bool known() const override { return true; }
    void store(const QString &token, QObject *context, std::function<void()> done) override
    {
        m_token = token;
        connect(&kept, &Gate::opened, context, std::move(done));
    }
    void forget() override { m_token.clear(); }

    Gate kept;

private:
    QString m_token;
};

const Failure didNotComeThrough = Failure::server(u"That sign-in did not come through. Try again."_s);
const Me mira{u"mira@"_s + vexal::deployment::emailDomain.toString(), u"Mira Okafor"_s};

QJsonObject answerFor(const Me &me, const QString &token)
{
    return {{u"token"_s, token}, {u"me"_s, QJsonObject{{u"email"_s, me.email}, {u"name"_s, me.name}}}};
}

QString stateOf(const QUrl &page)
{
    return QUrlQuery(page).queryItemValue(u"state"_s);
}

QUrl callbackOf(const QUrl &page, const QString &code = u"4/0Ab"_s)
{
    return QUrl(u"vexal://signed-in?state=%1&code=%2"_s.arg(stateOf(page), code));
}

} // namespace

class SignInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void thePageCarriesANewState();
    void thePageIsBelowTheBaseOfThisMoment();
    void anAddressOfTheOrganisationIsTheHint();
    void anAddressWithAPlusIsTheHintAsItIs();
    void anyOtherAddressIsNoHint_data();
    void anyOtherAddressIsNoHint();

    void theWholeWay();
    void theExchangeByteForByte();
    void theExchangeCarriesATokenThatIsStillStored();
    void aComputerWithoutANameIsAMac();
    void signingInTwiceKeepsTheLatestToken();
    void theTokenIsStoredWhenThePersonIsIn();
    void theTokenIsInNoPreference();

    void aCallbackThatIsNone_data();
    void aCallbackThatIsNone();
    void aStateInOtherLettersIsAnotherState();
    void aCallbackMayComeInAnyForm_data();
    void aCallbackMayComeInAnyForm();
    void theCallbackMayComeTwice();

    void aRefusedExchangeSaysWhatTheServerSays();
    void anExchangeThatIsNotReachedSaysSo();
    void aCredentialThatTheExchangeDoesNotKnowSignsNobodyOut();
    void anAnswerThatDoesNotDecodeHasNoWords_data();
    void anAnswerThatDoesNotDecodeHasNoWords();
    void aTokenThatNoRequestCanCarryIsNone_data();
    void aTokenThatNoRequestCanCarryIsNone();
    void nothingIsKeptOfAFailure();

    void anotherStartEndsTheFirstAsCancelled();
    void aLateCallbackOfAnOlderAttemptIsIgnored();
    void aLateAnswerToAnOlderExchangeIsIgnored();
    void anotherStartMayFollowFromTheEndOfTheFirst();
    void cancelling();
    void cancellingDuringTheExchange();
    void cancellingWhileTheTokenIsBeingStoredLeavesNobodyIn();
    void cancellingNothingIsNothing();
    void thePageIsThereToBeCopiedWhileThePersonIsExpected();
    void oneWhoGoesIsNotToldAndNothingWaits();

    void aUrlWhileNothingWaits_data();
    void aUrlWhileNothingWaits();
    void whatAUrlCarriesIsNeverTrustedWhileNothingWaits();

private:
    struct World
    {
        Client client;
        NotingBrowser browser;
        SignIn signIn{client.api, client.preferences, client.credentials, browser, u"Mira’s desk"_s};
        QList<Result<Me>> results;

        void start()
        {
            signIn.start(&signIn, [this](const Result<Me> &result) { results += result; });
        }
        QUrl page() const { return browser.pages.last(); }
    };

    std::unique_ptr<World> m_world;
};

void SignInTest::init()
{
    m_world = std::make_unique<World>();
    m_world->client.credentials.forget();
    m_world->client.server.on("POST", "/api/login/exchange").answer(200, answerFor(mira, u"fresh token"_s));
}

void SignInTest::cleanup()
{
    m_world.reset();
}

void SignInTest::thePageCarriesANewState()
{
    m_world->start();
    m_world->start();
    QCOMPARE(m_world->browser.pages.size(), 2);
    const QString state = stateOf(m_world->browser.pages[0]);
    QVERIFY(QRegularExpression(u"^[0-9A-F]{32}$"_s).match(state).hasMatch());
    QVERIFY(state != stateOf(m_world->browser.pages[1]));
    QCOMPARE(m_world->browser.pages[0].toString(),
             m_world->client.server.url().toString() + "/signin?state="_L1 + state);
}

void SignInTest::thePageIsBelowTheBaseOfThisMoment()
{
    m_world->client.preferences.setValue(vexal::preference::serverURL, u"https://b.example/team/?x=y#z"_s);
    m_world->start();
    QVERIFY(m_world->page().toString().startsWith("https://b.example/team/signin?state="_L1));
    QVERIFY(!m_world->page().hasFragment());
}

void SignInTest::anAddressOfTheOrganisationIsTheHint()
{
    m_world->client.preferences.setValue(vexal::preference::lastEmail, mira.email);
    m_world->start();
    QCOMPARE(QUrlQuery(m_world->page()).queryItems().size(), 2);
    QVERIFY(m_world->page().toEncoded().endsWith("&hint=" + mira.email.toLatin1()));
}

void SignInTest::anAddressWithAPlusIsTheHintAsItIs()
{
    m_world->client.preferences.setValue(vexal::preference::lastEmail, "a+b&c="_L1 + mira.email);
    m_world->start();
    QVERIFY(m_world->page().toEncoded().endsWith("&hint=a%2Bb%26c%3D" + mira.email.toLatin1()));
}

void SignInTest::anyOtherAddressIsNoHint_data()
{
    QTest::addColumn<QString>("address");
    const QString domain = vexal::deployment::emailDomain.toString();
    QTest::newRow("none") << QString();
    QTest::newRow("another domain") << u"mira@elsewhere.example"_s;
    QTest::newRow("below the domain") << "mira@mail."_L1 + domain;
    QTest::newRow("a domain that ends like it") << "mira@x"_L1 + domain;
    QTest::newRow("the domain and more") << "mira@"_L1 + domain + ".example"_L1;
    QTest::newRow("other letters") << "mira@"_L1 + domain.toUpper();
}

void SignInTest::anyOtherAddressIsNoHint()
{
    QFETCH(QString, address);
    if (!address.isEmpty())
        m_world->client.preferences.setValue(vexal::preference::lastEmail, address);
    m_world->start();
    QVERIFY(!QUrlQuery(m_world->page()).hasQueryItem(u"hint"_s));
}

void SignInTest::theWholeWay()
{
    QSignalSpy waiting(&m_world->signIn, &SignIn::waitingChanged);
    QVERIFY(!m_world->signIn.waiting());
    m_world->start();
    QVERIFY(m_world->signIn.waiting());
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->page())), Arrival::Callback);
    QVERIFY(m_world->signIn.waiting());
    QTRY_COMPARE(m_world->results.size(), 1);
    QVERIFY(m_world->results[0]);
    QCOMPARE(*m_world->results[0], mira);
    QVERIFY(!m_world->signIn.waiting());
    QCOMPARE(m_world->client.credentials.token(), u"fresh token"_s);
    QCOMPARE(m_world->client.preferences.value(vexal::preference::lastEmail), mira.email);
    QCOMPARE(waiting.size(), 3);
}

void SignInTest::theExchangeByteForByte()
{
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page(), u"4%2F0A+b%20c"_s));
    QTRY_COMPARE(m_world->results.size(), 1);
    const Received request = m_world->client.server.requests().first();
    QCOMPARE(request.method, "POST");
    QCOMPARE(request.target, "/api/login/exchange");
    QCOMPARE(request.header("Content-Type"), "application/json");
    QVERIFY(!request.header("Authorization"));
    QCOMPARE(request.body, u"{\"code\":\"4/0A+b c\",\"device\":\"Mira’s desk\"}"_s.toUtf8());
}

void SignInTest::theExchangeCarriesATokenThatIsStillStored()
{
    m_world->client.credentials.store(u"older"_s, this, [] {});
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->client.server.requests().first().header("Authorization"), "Bearer older");
}

void SignInTest::aComputerWithoutANameIsAMac()
{
    SignIn signIn(m_world->client.api, m_world->client.preferences, m_world->client.credentials, m_world->browser, {});
    signIn.start(this, [](const auto &) {});
    signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->client.server.requests().size(), 1);
    QCOMPARE(m_world->client.server.requests().first().json().value(u"device"_s), u"Mac"_s);
}

void SignInTest::signingInTwiceKeepsTheLatestToken()
{
    for (const QString &token : {u"one"_s, u"two"_s}) {
        m_world->client.server.on("POST", "/api/login/exchange").answer(200, answerFor(mira, token));
        m_world->results.clear();
        m_world->start();
        m_world->signIn.take(callbackOf(m_world->page()));
        QTRY_COMPARE(m_world->results.size(), 1);
        QCOMPARE(m_world->client.credentials.token(), token);
    }
}

void SignInTest::theTokenIsStoredWhenThePersonIsIn()
{
    SlowCredentialStore credentials;
    SignIn signIn(m_world->client.api, m_world->client.preferences, credentials, m_world->browser, {});
    int in = 0;
    signIn.start(this, [&in](const Result<Me> &me) { in += bool(me); });
    signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(credentials.token(), u"fresh token"_s);
    QCOMPARE(in, 0);
    QVERIFY(!m_world->client.preferences.value(vexal::preference::lastEmail));
    credentials.kept.open();
    QCOMPARE(in, 1);
    QCOMPARE(m_world->client.preferences.value(vexal::preference::lastEmail), mira.email);
}

void SignInTest::theTokenIsInNoPreference()
{
    theWholeWay();
    for (const QString &value : m_world->client.preferences.values())
        QVERIFY(!value.contains("fresh token"_L1));
}

void SignInTest::aCallbackThatIsNone_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("no query") << u"vexal://signed-in"_s;
    QTest::newRow("no code") << u"vexal://signed-in?state=STATE"_s;
    QTest::newRow("a code without a value") << u"vexal://signed-in?state=STATE&code"_s;
    QTest::newRow("an empty code") << u"vexal://signed-in?state=STATE&code="_s;
    QTest::newRow("no state") << u"vexal://signed-in?code=c"_s;
    QTest::newRow("another state") << u"vexal://signed-in?state=0123456789ABCDEF0123456789ABCDEF&code=c"_s;
    QTest::newRow("the right state second") << u"vexal://signed-in?state=x&state=STATE&code=c"_s;
    QTest::newRow("in the fragment") << u"vexal://signed-in#state=STATE&code=c"_s;
    QTest::newRow("an error") << u"vexal://signed-in?error=access_denied"_s;
}

void SignInTest::aCallbackThatIsNone()
{
    QFETCH(QString, url);
    m_world->start();
    QCOMPARE(m_world->signIn.take(QUrl(url.replace("STATE"_L1, stateOf(m_world->page())))), Arrival::Callback);
    QCOMPARE(m_world->results.size(), 1);
    QVERIFY(!m_world->results[0]);
    QCOMPARE(m_world->results[0].failure(), didNotComeThrough);
    QVERIFY(!m_world->signIn.waiting());
    QCOMPARE(m_world->client.server.connections(), 0);
}

void SignInTest::aStateInOtherLettersIsAnotherState()
{
    QString lower;
    do {
        m_world->start();
        lower = stateOf(m_world->page()).toLower();
    } while (lower == stateOf(m_world->page()));
    m_world->results.clear();
    m_world->signIn.take(QUrl("vexal://signed-in?code=c&state="_L1 + lower));
    QCOMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure(), didNotComeThrough);
}

void SignInTest::aCallbackMayComeInAnyForm_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("host") << u"vexal://signed-in?code=c&state=STATE"_s;
    QTest::newRow("path") << u"vexal:/signed-in?state=STATE&code=c"_s;
    QTest::newRow("opaque") << u"vexal:signed-in?state=STATE&code=c"_s;
    QTest::newRow("large scheme") << u"VEXAL://signed-in?state=STATE&code=c"_s;
    QTest::newRow("anything") << u"vexal://whatever/else?more=1&state=STATE&code=c#f"_s;
}

void SignInTest::aCallbackMayComeInAnyForm()
{
    QFETCH(QString, url);
    m_world->start();
    m_world->signIn.take(QUrl(url.replace("STATE"_L1, stateOf(m_world->page()))));
    QTRY_COMPARE(m_world->results.size(), 1);
    QVERIFY(m_world->results[0]);
}

void SignInTest::theCallbackMayComeTwice()
{
    m_world->start();
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->page())), Arrival::Callback);
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->page())), Arrival::Ignored);
    QTRY_COMPARE(m_world->results.size(), 1);
    QVERIFY(m_world->results[0]);
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->page())), Arrival::SignedIn);
    QCOMPARE(m_world->client.server.requests().size(), 1);
}

void SignInTest::aRefusedExchangeSaysWhatTheServerSays()
{
    m_world->client.server.on("POST", "/api/login/exchange")
        .answer(403, QJsonObject{{u"error"_s, u"Ask Mira first."_s}});
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure(), Failure::server(u"Ask Mira first."_s));
}

void SignInTest::anExchangeThatIsNotReachedSaysSo()
{
    m_world->client.server.goDown();
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure().sentence, u"Can't reach the Vexal server right now. Trying again…"_s);
}

void SignInTest::aCredentialThatTheExchangeDoesNotKnowSignsNobodyOut()
{
    m_world->client.credentials.store(u"older"_s, this, [] {});
    m_world->client.server.on("POST", "/api/login/exchange").answer(401);
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure(), Failure::signedOut());
    QCOMPARE(m_world->client.credentials.token(), u"older"_s);
}

void SignInTest::anAnswerThatDoesNotDecodeHasNoWords_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a page") << QByteArray("<html>");
    QTest::newRow("no token") << QByteArray(R"({"me": {"email": "a@b", "name": "A"}})");
    QTest::newRow("no person") << QByteArray(R"({"token": "t"})");
    QTest::newRow("half a person") << QByteArray(R"({"token": "t", "me": {"email": "a@b"}})");
    QTest::newRow("a number for a token") << QByteArray(R"({"token": 5, "me": {"email": "a@b", "name": "A"}})");
}

void SignInTest::anAnswerThatDoesNotDecodeHasNoWords()
{
    QFETCH(QByteArray, body);
    m_world->client.server.on("POST", "/api/login/exchange").answer(200, body);
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^The answer to a sign-in is no such answer: "_s));
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure(), Failure::other());
    QCOMPARE(m_world->results[0].failure().sentenceOr(u"own"_s), u"own"_s);
    QCOMPARE(m_world->client.credentials.token(), QString());
}

void SignInTest::aTokenThatNoRequestCanCarryIsNone_data()
{
    QTest::addColumn<QString>("token");
    QTest::newRow("empty") << QString();
    QTest::newRow("of two lines") << u"t\r\nX: y"_s;
    QTest::newRow("with an end in it") << u"t\0t"_s;
}

void SignInTest::aTokenThatNoRequestCanCarryIsNone()
{
    QFETCH(QString, token);
    m_world->client.server.on("POST", "/api/login/exchange").answer(200, answerFor(mira, token));
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTest::ignoreMessage(QtWarningMsg, "The answer to a sign-in has a token that no request can carry");
    QTRY_COMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure(), Failure::other());
    QCOMPARE(m_world->client.credentials.token(), QString());
}

void SignInTest::nothingIsKeptOfAFailure()
{
    m_world->client.preferences.setValue(vexal::preference::lastEmail, u"teo@x.example"_s);
    aRefusedExchangeSaysWhatTheServerSays();
    QCOMPARE(m_world->client.preferences.value(vexal::preference::lastEmail), u"teo@x.example"_s);
    QCOMPARE(m_world->client.credentials.token(), QString());
}

void SignInTest::anotherStartEndsTheFirstAsCancelled()
{
    m_world->start();
    m_world->start();
    QCOMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure().kind, Failure::Kind::Cancelled);
    QCOMPARE(m_world->results[0].failure().sentence, QString());
    QVERIFY(m_world->signIn.waiting());
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 2);
    QVERIFY(m_world->results[1]);
}

void SignInTest::aLateCallbackOfAnOlderAttemptIsIgnored()
{
    m_world->start();
    m_world->start();
    m_world->results.clear();
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->browser.pages[0])), Arrival::Ignored);
    QVERIFY(m_world->signIn.waiting());
    QVERIFY(m_world->results.isEmpty());
    m_world->signIn.take(callbackOf(m_world->browser.pages[1]));
    QTRY_COMPARE(m_world->results.size(), 1);
    QVERIFY(m_world->results[0]);
    QCOMPARE(m_world->client.server.requests().size(), 1);
}

void SignInTest::aLateAnswerToAnOlderExchangeIsIgnored()
{
    Gate gate;
    m_world->client.server.on("POST", "/api/login/exchange")
        .answer(Answer(200, answerFor(mira, u"late"_s)).heldBy(gate));
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->client.server.requests().size(), 1);
    m_world->start();
    gate.open();
    QTRY_COMPARE(m_world->client.server.openConnections(), 0);
    QCOMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure().kind, Failure::Kind::Cancelled);
    QCOMPARE(m_world->client.credentials.token(), QString());
    QVERIFY(m_world->signIn.waiting());
}

void SignInTest::anotherStartMayFollowFromTheEndOfTheFirst()
{
    m_world->signIn.start(this, [this](const auto &) { m_world->start(); });
    m_world->signIn.cancel();
    QCOMPARE(m_world->browser.pages.size(), 2);
    QVERIFY(m_world->signIn.waiting());
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->results.size(), 1);
    QVERIFY(m_world->results[0]);
}

void SignInTest::cancelling()
{
    m_world->start();
    m_world->signIn.cancel();
    QCOMPARE(m_world->results.size(), 1);
    QCOMPARE(m_world->results[0].failure().kind, Failure::Kind::Cancelled);
    QVERIFY(!m_world->signIn.waiting());
    QCOMPARE(m_world->signIn.take(callbackOf(m_world->page())), Arrival::NobodyIn);
    QCOMPARE(m_world->client.server.connections(), 0);
}

void SignInTest::cancellingDuringTheExchange()
{
    m_world->client.server.on("POST", "/api/login/exchange").answer(Answer::never());
    m_world->start();
    m_world->signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(m_world->client.server.requests().size(), 1);
    m_world->signIn.cancel();
    QCOMPARE(m_world->results.size(), 1);
    QTRY_COMPARE(m_world->client.server.openConnections(), 0);
    QCOMPARE(m_world->results.size(), 1);
}

void SignInTest::cancellingWhileTheTokenIsBeingStoredLeavesNobodyIn()
{
    SlowCredentialStore credentials;
    SignIn signIn(m_world->client.api, m_world->client.preferences, credentials, m_world->browser, {});
    QList<Result<Me>> results;
    signIn.start(this, [&results](const Result<Me> &me) { results += me; });
    signIn.take(callbackOf(m_world->page()));
    QTRY_COMPARE(credentials.token(), u"fresh token"_s);
    signIn.cancel();
    QCOMPARE(credentials.token(), QString());
    credentials.kept.open();
    QCOMPARE(results.size(), 1);
    QCOMPARE(results[0].failure().kind, Failure::Kind::Cancelled);
    QVERIFY(!m_world->client.preferences.value(vexal::preference::lastEmail));
}

void SignInTest::cancellingNothingIsNothing()
{
    QSignalSpy waiting(&m_world->signIn, &SignIn::waitingChanged);
    m_world->signIn.cancel();
    QVERIFY(waiting.isEmpty());
}

void SignInTest::thePageIsThereToBeCopiedWhileThePersonIsExpected()
{
    m_world->client.server.on("POST", "/api/login/exchange").answer(Answer::never());
    QVERIFY(m_world->signIn.page().isEmpty());
    m_world->start();
    QCOMPARE(m_world->signIn.page(), m_world->page());
    m_world->signIn.take(callbackOf(m_world->page()));
    QVERIFY(m_world->signIn.page().isEmpty());
    QVERIFY(m_world->signIn.waiting());
}

void SignInTest::oneWhoGoesIsNotToldAndNothingWaits()
{
    auto context = std::make_unique<QObject>();
    int told = 0;
    m_world->signIn.start(context.get(), [&told](const auto &) { ++told; });
    context.reset();
    QVERIFY(!m_world->signIn.waiting());
    QCOMPARE(told, 0);
}

void SignInTest::aUrlWhileNothingWaits_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<Arrival>("withToken");
    QTest::addColumn<Arrival>("without");
    QTest::newRow("host") << u"vexal://signed-in"_s << Arrival::SignedIn << Arrival::NobodyIn;
    QTest::newRow("host and more") << u"vexal://signed-in?token=t&code=c"_s << Arrival::SignedIn << Arrival::NobodyIn;
    QTest::newRow("path") << u"vexal:/signed-in"_s << Arrival::SignedIn << Arrival::NobodyIn;
    QTest::newRow("opaque") << u"vexal:signed-in"_s << Arrival::SignedIn << Arrival::NobodyIn;
    QTest::newRow("a component of the path")
        << u"vexal://app/signed-in/now"_s << Arrival::SignedIn << Arrival::NobodyIn;
    QTest::newRow("part of a component") << u"vexal://app/signed-in-not"_s << Arrival::Ignored << Arrival::Ignored;
    QTest::newRow("in the query") << u"vexal://app?signed-in"_s << Arrival::Ignored << Arrival::Ignored;
    QTest::newRow("something else") << u"vexal://open/file"_s << Arrival::Ignored << Arrival::Ignored;
    QTest::newRow("another scheme") << u"https://signed-in/signed-in"_s << Arrival::Ignored << Arrival::Ignored;
    QTest::newRow("no URL") << u"signed-in"_s << Arrival::Ignored << Arrival::Ignored;
}

void SignInTest::aUrlWhileNothingWaits()
{
    QFETCH(QString, url);
    QTEST(m_world->signIn.take(QUrl(url)), "without");
    m_world->client.credentials.store(u"token"_s, this, [] {});
    QTEST(m_world->signIn.take(QUrl(url)), "withToken");
}

void SignInTest::whatAUrlCarriesIsNeverTrustedWhileNothingWaits()
{
    m_world->client.credentials.store(u"token"_s, this, [] {});
    m_world->signIn.take(QUrl(u"vexal://signed-in?token=evil&state=x&code=c&email=evil@x.example"_s));
    QCOMPARE(m_world->client.credentials.token(), u"token"_s);
    QVERIFY(!m_world->client.preferences.value(vexal::preference::lastEmail));
    QCOMPARE(m_world->client.server.connections(), 0);
}

QTEST_GUILESS_MAIN(SignInTest)
#include "tst_signin.moc"
