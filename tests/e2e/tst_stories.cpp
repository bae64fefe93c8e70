#include "stage.h"

#include <QDirIterator>
#include <QFile>
#include <QScopeGuard>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString button = u"push button"_s;
const QString newFile = u"The Winter Tram Advent calendar"_s;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Counts, as often as it can look, how often a place of the display holds these pixels.
class Glimpses
{
public:
    Glimpses(const Desk &desk, const QRect &place, const QByteArray &wanted)
        : m_thread([this, &desk, place, wanted](const std::stop_token &end) {
            for (; !end.stop_requested(); QThread::msleep(1))
                m_count += desk.pixels(place) == wanted ? 1 : 0;
        })
    {
    }
    int count() const { return m_count; }

private:
    std::atomic<int> m_count = 0;
    std::jthread m_thread;
};

} // namespace

/// What people live through with Vexal: the real client and board, a real keyring and browser.
class StoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<Stage>(); }
    void init() { m_stage->begin(); }
    void cleanup() { m_stage->end(); }
    void cleanupTestCase() { m_stage.reset(); }

    void thePersonSignsInThroughTheBrowser();
    void aRestartGoesStraightToTheBoard();
    void aFrozenKeyringKeepsNobodyFromTheSignInScreen();
    void whatSomebodyElseDoesIsToldInAToast();
    void aBoardThatIsAwayIsSaidSoUntilItIsBack();
    void aRevokedTokenLeadsToTheSignInScreen();
    void theTokenStandsNowhereButInTheKeyring();
    void signingOutLeavesNothing();
    void signingOutOfAKeyringThatWasRestartedLeavesNothing();
    void aSecondStartHandsItsUrlOverAndEnds();
    void aSyncBringsTheNewFile();
    void stopStopsTheSync();
    void aBoardKilledInTheMiddleOfASyncGoesOn();

private:
    int port() const { return m_stage->port(); }
    Desk &desk() const { return m_stage->desk(); }

    std::unique_ptr<Stage> m_stage;
};

void StoriesTest::thePersonSignsInThroughTheBrowser()
{
    VexalProcess vexal(desk(), port());
    QVERIFY(m_stage->signsIn(vexal));
    QVERIFY(!vexal.shows(button, signInButton));
    WAIT_FOR(vexal.shows(u"graphic"_s, u"Mira Halden"_s));

    const QStringList kept = m_stage->keptTokens();
    QCOMPARE(kept.size(), 1);
    QCOMPARE(m_stage->visitor().board().me.email, mira);
}

void StoriesTest::aRestartGoesStraightToTheBoard()
{
    const auto tagline = u"Supplier proofs, checked against what we sent."_s;
    QRect place;
    QByteArray signInScreen;
    {
        const VexalProcess vexal(desk(), port());
        WAIT_FOR(vexal.shows(u"label"_s, tagline));
        place = vexal.find(u"label"_s, tagline)->place();
        WAIT_FOR(isDrawn(desk().pixels(place)));
        signInScreen = desk().pixels(place);
    }
    WAIT_FOR(!isDrawn(desk().pixels(place)));
    {
        // A start without a token is seen to show it: so would one with a token be, if it did.
        const Glimpses glimpses(desk(), place, signInScreen);
        const VexalProcess vexal(desk(), port());
        WAIT_FOR(glimpses.count() > 0);
    }
    WAIT_FOR(!isDrawn(desk().pixels(place)));
    const Glimpses glimpses(desk(), place, signInScreen);
    const auto vexal = m_stage->startSignedIn();
    WAIT_FOR(isDrawn(desk().pixels(place)));
    QCOMPARE(glimpses.count(), 0);
    QVERIFY(!vexal->shows(button, signInButton));
}

void StoriesTest::aFrozenKeyringKeepsNobodyFromTheSignInScreen()
{
    m_stage->keepTokenOf(mira);
    desk().keyring().freeze();
    const auto thaw = qScopeGuard([this] { desk().keyring().thaw(); });
    const VexalProcess vexal(desk(), port());
    WAIT_FOR(vexal.shows(button, signInButton));
    desk().keyring().thaw();
    WAIT_FOR(showsTheBoard(vexal));
}

void StoriesTest::whatSomebodyElseDoesIsToldInAToast()
{
    const auto vexal = m_stage->startSignedIn();
    QCOMPARE(writeNote(port(), teo, u"The owl looks the other way."_s), 200);
    WAIT_FOR(vexal->says(u"Teo Brandt: The owl looks the other way."_s));
}

void StoriesTest::aBoardThatIsAwayIsSaidSoUntilItIsBack()
{
    const auto vexal = m_stage->startSignedIn();
    QCOMPARE(m_stage->board().terminate(), 0);
    WAIT_FOR(vexal->says(u"Can't reach the Vexal server right now. Trying again…"_s));
    QVERIFY(showsTheBoard(*vexal));
    m_stage->startBoard();
    WAIT_FOR(!vexal->says(u"Can't reach"_s));
    WAIT_FOR(vexal->shows(u"label"_s, u"Up to date"_s));
}

void StoriesTest::aRevokedTokenLeadsToTheSignInScreen()
{
    const auto vexal = m_stage->startSignedIn();
    QCOMPARE(m_stage->visitor().post(u"/api/logout"_s).status, 200);
    WAIT_FOR(vexal->says(u"You're signed out. Sign in again."_s));
    WAIT_FOR(vexal->shows(button, signInButton));
    QVERIFY(!showsTheBoard(*vexal));
    WAIT_FOR(m_stage->keptTokens().isEmpty());
}

void StoriesTest::theTokenStandsNowhereButInTheKeyring()
{
    const auto vexal = m_stage->startSignedIn();
    const QByteArray token = m_stage->keptTokens().value(0).toUtf8();
    QVERIFY(token.size() >= 16);
    // A refusal is said in an error sentence, and signs out.
    QCOMPARE(Visitor(port(), QString::fromUtf8(token)).post(u"/api/logout"_s).status, 200);
    WAIT_FOR(vexal->says(u"You're signed out. Sign in again."_s));
    QVERIFY(!vexal->errors().contains(token));
    for (const QString &told : {u"cmdline"_s, u"environ"_s})
        QVERIFY2(!contentOf(u"/proc/%1/%2"_s.arg(vexal->id()).arg(told)).contains(token), qPrintable(told));
    int files = 0;
    for (QDirIterator file(desk().path({}), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         file.hasNext();) {
        QVERIFY2(!contentOf(file.next()).contains(token), qPrintable(file.filePath()));
        ++files;
    }
    QVERIFY(files > 0);
}

void StoriesTest::signingOutLeavesNothing()
{
    const auto vexal = m_stage->startSignedIn();
    const QString token = m_stage->keptTokens().value(0);
    QVERIFY(m_stage->signsOut(*vexal));
    // The board knows the token no more, either.
    WAIT_FOR(Visitor(port(), token).get(u"/api/state"_s).status == 401);
    QCOMPARE(vexal->errors(), QByteArray());
}

void StoriesTest::signingOutOfAKeyringThatWasRestartedLeavesNothing()
{
    const auto vexal = m_stage->startSignedIn();
    desk().keyring().stop();
    desk().keyring().start();
    QCOMPARE(m_stage->keptTokens().size(), 1);
    QVERIFY(m_stage->signsOut(*vexal));
    QCOMPARE(vexal->errors(), QByteArray());
}

void StoriesTest::aSecondStartHandsItsUrlOverAndEnds()
{
    VexalProcess vexal(desk(), port());
    WAIT_FOR(vexal.shows(button, signInButton));
    VexalProcess second(desk(), port(), {u"vexal://signed-in?code=1&state=2"_s});
    QCOMPARE(second.exitStatus(), 0);
    // There is no token to complete from, and nobody waits for the code.
    WAIT_FOR(vexal.says(u"Sign-in didn't finish."_s));
    QVERIFY(vexal.isRunning());
}

void StoriesTest::aSyncBringsTheNewFile()
{
    const auto vexal = m_stage->startSignedIn();
    QVERIFY(!showsFile(*vexal, newFile));
    QVERIFY(vexal->press(u"Sync"_s));
    WAIT_FOR(vexal->says(u"Asked the Mac mini to sync."_s));
    WAIT_FOR(vexal->says(u"1 new file from Tarnwick Cards"_s));
    WAIT_FOR(showsFile(*vexal, newFile));
    WAIT_FOR(vexal->shows(button, u"Sync"_s));
}

void StoriesTest::stopStopsTheSync()
{
    const auto vexal = m_stage->startSignedIn();
    QVERIFY(vexal->press(u"Sync"_s));
    QVERIFY(vexal->press(u"Stop"_s));
    WAIT_FOR(vexal->says(u"Stopping."_s));
    Visitor visitor(port());
    QVERIFY(visitor.signIn(teo));
    const auto last = [&] { return visitor.board().jobs.first(); };
    WAIT_FOR(last().finished);
    QCOMPARE(last().status, u"stopped"_s);
    WAIT_FOR(vexal->shows(button, u"Sync"_s));
    QVERIFY(!showsFile(*vexal, newFile));
}

void StoriesTest::aBoardKilledInTheMiddleOfASyncGoesOn()
{
    const auto vexal = m_stage->startSignedIn();
    QVERIFY(vexal->press(u"Sync"_s));
    WAIT_FOR(vexal->shows(button, u"Stop"_s));
    m_stage->board().kill();
    WAIT_FOR(vexal->says(u"Can't reach the Vexal server right now. Trying again…"_s));
    m_stage->startBoard();
    WAIT_FOR(!vexal->says(u"Can't reach"_s));
    WAIT_FOR(showsFile(*vexal, newFile));
}

QTEST_GUILESS_MAIN(StoriesTest)
#include "tst_stories.moc"
