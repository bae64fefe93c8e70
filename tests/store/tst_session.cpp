#include "livestore.h"
#include "slowcredentials.h"

#include <QSignalSpy>
#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString expired = u"You're signed out. Sign in again."_s;

const QJsonObject exchanged{{u"token"_s, u"fresh"_s},
                            {u"me"_s, QJsonObject{{u"email"_s, u"ada@lanternhouse.example"_s}, {u"name"_s, u"Ada"_s}}}};

} // namespace

Q_DECLARE_METATYPE(Answer)

/// People who come and go.
class TestSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_live = std::make_unique<LiveStore>(aBoard({aFile(u"f"_s), aFile(u"g"_s)})); }
    void cleanup() { m_live.reset(); }

    void aStoredCredentialSignsIn()
    {
        m_live->store.resume();
        QVERIFY(m_live->store.signedIn());
        QTRY_VERIFY(m_live->sleep.asleep());
    }

    void aCredentialThatComesLateSignsIn()
    {
        m_live->client.credentials.forget();
        m_live->store.resume();
        QVERIFY(!m_live->store.signedIn());
        m_live->client.credentials.store(u"token"_s, this, [] {});
        QVERIFY(m_live->store.signedIn());
        QTRY_VERIFY(m_live->sleep.asleep());
        QCOMPARE(m_live->sleep.pauses.size(), 1);
    }

    void aUrlWaitsUntilItIsKnownWhetherSomebodyIsSignedIn()
    {
        SlowCredentials credentials;
        SaidSleep sleep;
        Surroundings around = m_live->surroundings(sleep);
        SignIn signIn(m_live->client.api, m_live->client.preferences, credentials, m_live->browser, u"desk"_s);
        Store store(m_live->clock.clock(), {.api = around.api,
                                            .signIn = signIn,
                                            .credentials = credentials,
                                            .windows = around.windows,
                                            .badge = around.badge,
                                            .notifications = around.notifications,
                                            .opener = around.opener,
                                            .picker = around.picker,
                                            .sleep = around.sleep});
        store.resume();
        store.openUrl(QUrl(u"vexal://signed-in"_s));
        QVERIFY(!store.toast());
        credentials.answer();
        QVERIFY(store.signedIn());
        QVERIFY(!store.toast());
    }

    void aCredentialStoreIsWaitedFor()
    {
        SlowCredentials credentials;
        SaidSleep sleep;
        Surroundings around = m_live->surroundings(sleep);
        Store store(m_live->clock.clock(), {.api = around.api,
                                            .signIn = around.signIn,
                                            .credentials = credentials,
                                            .windows = around.windows,
                                            .badge = around.badge,
                                            .notifications = around.notifications,
                                            .opener = around.opener,
                                            .picker = around.picker,
                                            .sleep = around.sleep});
        store.resume();
        store.resume();
        QVERIFY(!store.signedIn());
        credentials.answer();
        QVERIFY(store.signedIn());
        QTRY_VERIFY(sleep.asleep());
        QCOMPARE(sleep.pauses.size(), 1);
    }

    void aTokenThatCannotBeKeptIsSaidSo()
    {
        m_live->begin();
        Q_EMIT m_live->client.credentials.keptForThisRunOnly();
        QCOMPARE(m_live->toast(), u"This computer has no credential store, so you'll sign in again next time."_s);
    }

    void signingOutTellsTheServerAndForgetsTheToken()
    {
        m_live->begin();
        m_live->client.server.on("POST", "/api/logout").answer(500);
        m_live->store.signOut();
        QCOMPARE(m_live->client.credentials.token(), u""_s);
        QVERIFY(!m_live->store.signedIn());
        QTRY_COMPARE(m_live->client.server.requests("POST", "/api/logout").size(), 1);
        const Received logout = m_live->client.server.requests("POST", "/api/logout").first();
        QCOMPARE(logout.header("Authorization"), "Bearer token");
        QCOMPARE(logout.body, "");
        QCOMPARE(m_live->toast(), u""_s);
    }

    void signingOutClearsWhatTheSessionBrought()
    {
        LiveStore &live = *m_live;
        live.client.server.on("GET", "/version.json")
            .answer(200, QJsonObject{{u"version"_s, u"9"_s}, {u"build"_s, 9}, {u"url"_s, u"x:y"_s}});
        live.client.server.on("GET", "/api/files/g").answer(404);
        live.begin();
        QTRY_VERIFY(live.store.update());
        live.store.selectFile(u"g"_s);
        live.store.loadDetail(u"g"_s);
        QTRY_VERIFY(!live.store.detailProblem(u"g"_s).isEmpty());
        live.store.selectFile(u"f"_s);
        live.store.turnPage(u"f"_s, 1);
        live.store.focusFinding(u"x"_s);
        live.store.answerFinding(u"x"_s);
        live.store.placePin({0.5, 0.5});
        live.store.setPinning(true);
        live.store.setAgainst(u"latest"_s);
        live.client.server.on("GET", "/api/state").answer(500).answer(500).react([&](const Received &request) {
            return LiveStore::tagged(encode(live.board), request);
        });
        live.client.server.on("POST", "/api/jobs").answer(Answer::never());
        live.round();
        QVERIFY(live.store.problem());
        live.store.refreshNow();
        live.store.startSync();
        live.store.showToast(u"Hello"_s);

        live.store.signOut();
        QVERIFY(!live.store.signedIn());
        QVERIFY(!live.store.board());
        QVERIFY(live.store.details().isEmpty());
        QVERIFY(live.store.detailProblems().isEmpty());
        QVERIFY(!live.store.problem());
        QVERIFY(!live.store.lastOK());
        QVERIFY(live.store.selection().isEmpty());
        QVERIFY(live.store.page().isEmpty());
        QVERIFY(!live.store.focus());
        QVERIFY(!live.store.draftPin());
        QVERIFY(!live.store.draftFinding());
        QVERIFY(!live.store.pinning());
        QVERIFY(live.store.busy().isEmpty());
        QVERIFY(!live.store.update());
        QVERIFY(!live.store.refreshing());
        QVERIFY(!live.store.toast());
        QVERIFY(!live.store.findFile(u"f"_s));
        QCOMPARE(live.badge.shown.last(), 0);
        QVERIFY(!live.sleep.asleep());
        QCOMPARE(live.store.against(), u"latest"_s);

        QTRY_COMPARE(live.client.server.requests("GET", "/api/state").size(), 2);
        live.client.server.forgetRequests();
        signInAgain();
        for (const Received &request : live.client.server.requests())
            QCOMPARE(request.header("If-None-Match"), std::nullopt);
        QCOMPARE(live.store.board(), live.board);
        QVERIFY(live.store.detail(u"f"_s));
    }

    void everySignOfASignOutComesOnce()
    {
        m_live->begin();
        QSignalSpy boards(&m_live->store, &Store::boardChanged);
        QSignalSpy sessions(&m_live->store, &Store::signedInChanged);
        bool whole = false;
        QObject::connect(&m_live->store, &Store::boardChanged, this,
                         [&] { whole = !m_live->store.signedIn() && m_live->store.details().isEmpty(); });
        m_live->store.signOut();
        m_live->store.signOut(true);
        QVERIFY(whole);
        QCOMPARE(boards.size(), 1);
        QCOMPARE(sessions.size(), 1);
        QCOMPARE(m_live->toast(), u""_s);
    }

    void anAnswerToAnEarlierSessionRefillsNothing()
    {
        LiveStore &live = *m_live;
        live.begin();
        Gate gate;
        live.client.server.on("GET", "/api/state").answer(Answer(200, encode(aBoard({}, 99))).heldBy(gate));
        live.sleep.wake();
        QTRY_COMPARE(live.client.server.requests("GET", "/api/state").size(), 1);
        live.store.signOut();
        gate.open();
        QTRY_COMPARE(live.client.server.requests("POST", "/api/logout").size(), 1);
        live.client.server.on("GET", "/api/state").answer(200, encode(live.board));
        signInAgain();
        QCOMPARE(live.store.board(), live.board);
        QCOMPARE(live.badge.shown, (QList{2, 0, 2}));
    }

    void anEarlierSessionsRefusalLeavesTheNewOneAlone()
    {
        LiveStore &live = *m_live;
        live.begin();
        Gate gate;
        live.client.server.on("GET", "/api/state").answer(Answer(401).heldBy(gate)).answer(200, encode(live.board));
        live.sleep.wake();
        QTRY_COMPARE(live.client.server.requests("GET", "/api/state").size(), 1);
        live.store.signOut();
        signInAgain();
        gate.open();
        live.round();
        live.round();
        QVERIFY(live.store.signedIn());
        QCOMPARE(live.toast(), u""_s);
    }

    void theLoopGoesOnAfterSigningInAgain()
    {
        m_live->begin();
        m_live->store.signOut();
        signInAgain();
        const qsizetype pauses = m_live->sleep.pauses.size();
        m_live->round();
        QCOMPARE(m_live->sleep.pauses.size(), pauses + 1);
    }

    void whoComesBackFromThePageIsSignedIn()
    {
        LiveStore &live = *m_live;
        live.client.credentials.forget();
        QSignalSpy signing(&live.store, &Store::signingInChanged);
        live.client.server.on("POST", "/api/login/exchange").answer(200, exchanged);
        live.store.signIn();
        QVERIFY(live.store.signingIn());
        QCOMPARE(live.browser.pages, QList{live.store.signInPage()});
        live.store.openUrl(callback());
        QVERIFY(live.store.signingIn());
        QCOMPARE(live.store.signInPage(), QUrl());
        QTRY_VERIFY(live.store.signedIn());
        QVERIFY(!live.store.signingIn());
        QVERIFY(!signing.isEmpty());
        QTRY_VERIFY(live.sleep.asleep());
        QCOMPARE(live.toast(), u""_s);
        QCOMPARE(live.client.server.requests("GET", "/api/state").first().header("Authorization"), "Bearer fresh");
        QCOMPARE(live.client.server.requests("GET", "/version.json").size(), 1);
    }

    void whoGivesUpIsToldNothing()
    {
        m_live->client.credentials.forget();
        m_live->store.signIn();
        m_live->store.cancelSignIn();
        QVERIFY(!m_live->store.signingIn());
        QCOMPARE(m_live->toast(), u""_s);
        QVERIFY(!m_live->store.signedIn());
    }

    void whoBeginsAnewIsToldNothing()
    {
        m_live->client.credentials.forget();
        m_live->store.signIn();
        m_live->store.signIn();
        QVERIFY(m_live->store.signingIn());
        QCOMPARE(m_live->browser.pages.size(), 2);
        QCOMPARE(m_live->toast(), u""_s);
    }

    void aSignInThatFailsIsSaidSo_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QString>("toast");
        QTest::newRow("refused") << Answer(400, QJsonObject{{u"error"_s, u"Not one of us."_s}}) << u"Not one of us."_s;
        QTest::newRow("not known") << Answer(401) << expired;
        QTest::newRow("no answer") << Answer(200, "garbage") << u"Sign-in didn't finish. Try again."_s;
    }

    void aSignInThatFailsIsSaidSo()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, toast);
        LiveStore &live = *m_live;
        live.client.credentials.forget();
        live.client.server.on("POST", "/api/login/exchange").answer(answer);
        live.store.signIn();
        live.store.openUrl(callback());
        QTRY_COMPARE(live.toast(), toast);
        QVERIFY(!live.store.signedIn());
        QVERIFY(!live.store.signingIn());
    }

    void aCallbackOfNobodysIsSaidSo()
    {
        m_live->client.credentials.forget();
        m_live->store.signIn();
        m_live->store.openUrl(QUrl(u"vexal://callback?state=other&code=1"_s));
        QCOMPARE(m_live->toast(), u"That sign-in did not come through. Try again."_s);
    }

    void aUrlThatSaysSignedInIsBelievedOnlyWithACredential()
    {
        LiveStore &live = *m_live;
        const QString token = live.client.credentials.token();
        live.client.credentials.forget();
        live.store.openUrl(QUrl(u"vexal://signed-in?token=forged"_s));
        QVERIFY(!live.store.signedIn());
        QCOMPARE(live.toast(), u"Sign-in didn't finish."_s);
        live.client.credentials.store(token, &live.store, [] {});
        live.store.openUrl(QUrl(u"vexal://signed-in"_s));
        QVERIFY(live.store.signedIn());
        QTRY_VERIFY(live.sleep.asleep());
        QCOMPARE(live.client.server.requests("GET", "/api/state").first().header("Authorization"), "Bearer token");
    }

    void otherUrlsAreIgnored()
    {
        for (const QString &url : {u"vexal://hello"_s, u"https://signed-in"_s, u"vexal:"_s})
            m_live->store.openUrl(QUrl(url));
        QVERIFY(!m_live->store.signedIn());
        QCOMPARE(m_live->toast(), u""_s);
    }

    void whoIsSignedInNeedNotSignIn()
    {
        m_live->begin();
        m_live->store.signIn();
        QVERIFY(m_live->browser.pages.isEmpty());
        m_live->store.openUrl(QUrl(u"vexal://signed-in"_s));
        m_live->round();
        QCOMPARE(m_live->client.server.requests("GET", "/api/state").size(), 1);
    }

    void newsDoNotBeginAgain()
    {
        LiveStore &live = *m_live;
        Event event;
        event.id = 5;
        event.kind = u"synced"_s;
        event.at = live.clock.clock().milliseconds() + 1;
        live.board.events = {event};
        live.begin();
        live.store.signOut();
        signInAgain();
        QCOMPARE(live.toast(), u""_s);
    }

private:
    /// The URL that the page which is open ends in.
    QUrl callback() const
    {
        const QString state = QUrlQuery(m_live->browser.pages.last()).queryItemValue(u"state"_s);
        return QUrl(u"vexal://callback?code=1&state="_s + state);
    }

    void signInAgain()
    {
        m_live->client.credentials.store(u"token"_s, &m_live->store, [] {});
        m_live->store.resume();
        QTRY_VERIFY(m_live->sleep.asleep());
    }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
