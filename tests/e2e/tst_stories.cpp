#include "boardprocess.h"
#include "deployment.h"
#include "desk.h"
#include "vexalprocess.h"
#include "visitor.h"

#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <thread>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

constexpr int patience = 60'000; ///< Milliseconds for whatever a person would wait for, on a slow machine, too.

const QString service = deployment::applicationId.toString();
const QString account = u"session"_s;
const QString mira = u"mira@lanternhouse.example"_s;
const QString teo = u"teo@lanternhouse.example"_s;
const QString button = u"push button"_s;
const QString signInButton = u"Sign in with Google"_s;
const QString newFile = u"The Winter Tram Advent calendar"_s;

bool showsFile(const VexalProcess &vexal, const QString &title)
{
    return vexal.shows(u"list item"_s, title);
}

bool showsTheBoard(const VexalProcess &vexal)
{
    return showsFile(vexal, u"Moth Carnival Box lid"_s);
}

/// The status with which the board takes a note on one of its files.
int writeNote(Visitor &visitor, const QString &text)
{
    return visitor.post(u"/api/comments"_s, {{u"file_id"_s, visitor.board().files.first().id}, {u"text"_s, text}})
        .status;
}

/// Whether there is more than the bare display.
bool isDrawn(const QByteArray &pixels)
{
    return pixels.count('\0') < pixels.size() / 2;
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

#define WAIT_FOR(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, patience)

/// What people live through with Vexal: the real client and board, a real keyring and browser.
class StoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void thePersonSignsInThroughTheBrowser();
    void aRestartGoesStraightToTheBoard();
    void whatSomebodyElseDoesIsToldInAToast();
    void aBoardThatIsAwayIsSaidSoUntilItIsBack();
    void aRevokedTokenLeadsToTheSignInScreen();
    void aSecondStartHandsItsUrlOverAndEnds();
    void aSyncBringsTheNewFile();
    void stopStopsTheSync();
    void aBoardKilledInTheMiddleOfASyncGoesOn();

private:
    void startBoard();
    /// A token of that person's on the board, as the exchange of a sign-in gives it.
    QString tokenOf(const QString &email) const;
    /// Starts the client with the person signed in, and waits for the board to be on the screen.
    std::unique_ptr<VexalProcess> startSignedIn(const QString &email = mira);

    std::unique_ptr<Desk> m_desk;
    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<BoardProcess> m_board;
    int m_port = 0;
};

void StoriesTest::initTestCase()
{
    m_desk = std::make_unique<Desk>();
}

void StoriesTest::cleanupTestCase()
{
    m_desk.reset();
}

void StoriesTest::init()
{
    m_data = std::make_unique<QTemporaryDir>();
    m_port = 0;
    startBoard();
    m_desk->trustPagesOf(m_port);
}

void StoriesTest::cleanup()
{
    m_board.reset();
    m_desk->clear();
}

void StoriesTest::startBoard()
{
    m_board = std::make_unique<BoardProcess>(QStringList{u"--data"_s, m_data->path(), u"--seed"_s,
                                                         QStringLiteral(VEXAL_SAMPLE_FOLDER), u"--listen"_s,
                                                         u"127.0.0.1:%1"_s.arg(m_port)});
    m_port = m_board->port();
    QVERIFY2(m_port != 0, qPrintable(m_board->errors()));
}

QString StoriesTest::tokenOf(const QString &email) const
{
    Visitor visitor(m_port);
    const auto chosen =
        visitor.post(u"/signin"_s, "state=s&email=" + email.toUtf8(), "application/x-www-form-urlencoded");
    const auto code = QString::fromUtf8(chosen.location).section(u"code="_s, 1);
    return visitor.post(u"/api/login/exchange"_s, {{u"code"_s, code}, {u"device"_s, u"a test"_s}})
        .json()
        .value("token"_L1)
        .toString();
}

std::unique_ptr<VexalProcess> StoriesTest::startSignedIn(const QString &email)
{
    m_desk->keyring().put(service, account, tokenOf(email));
    auto vexal = std::make_unique<VexalProcess>(*m_desk, m_port);
    if (!QTest::qWaitFor([&] { return showsTheBoard(*vexal); }, patience))
        qWarning("The board never came: %s", vexal->errors().constData());
    return vexal;
}

void StoriesTest::thePersonSignsInThroughTheBrowser()
{
    VexalProcess vexal(*m_desk, m_port);
    QVERIFY(vexal.press(signInButton));
    const auto person = [this] {
        const auto browser = m_desk->program(u"chromium"_s);
        const auto isMira = [](const Accessible &candidate) {
            return candidate.role() == button && candidate.name().contains(mira);
        };
        return browser ? browser->find(isMira) : std::nullopt;
    };
    WAIT_FOR(person());
    QVERIFY(person()->press());
    WAIT_FOR(showsTheBoard(vexal));
    QVERIFY(!vexal.shows(button, signInButton));
    WAIT_FOR(vexal.shows(u"graphic"_s, u"Mira Halden"_s));

    const QStringList kept = m_desk->keyring().secrets(service, account);
    QCOMPARE(kept.size(), 1);
    QCOMPARE(Visitor(m_port, kept.first()).board().me.email, mira);
}

void StoriesTest::aRestartGoesStraightToTheBoard()
{
    const auto tagline = u"Supplier proofs, checked against what we sent."_s;
    QRect place;
    QByteArray signInScreen;
    {
        const VexalProcess vexal(*m_desk, m_port);
        WAIT_FOR(vexal.shows(u"label"_s, tagline));
        place = vexal.find(u"label"_s, tagline)->place();
        WAIT_FOR(isDrawn(m_desk->pixels(place)));
        signInScreen = m_desk->pixels(place);
    }
    WAIT_FOR(!isDrawn(m_desk->pixels(place)));
    {
        // A start without a token is seen to show it: so would one with a token be, if it did.
        const Glimpses glimpses(*m_desk, place, signInScreen);
        const VexalProcess vexal(*m_desk, m_port);
        WAIT_FOR(glimpses.count() > 0);
    }
    WAIT_FOR(!isDrawn(m_desk->pixels(place)));
    const Glimpses glimpses(*m_desk, place, signInScreen);
    const auto vexal = startSignedIn();
    WAIT_FOR(isDrawn(m_desk->pixels(place)));
    QCOMPARE(glimpses.count(), 0);
    QVERIFY(!vexal->shows(button, signInButton));
}

void StoriesTest::whatSomebodyElseDoesIsToldInAToast()
{
    const auto vexal = startSignedIn();
    Visitor visitor(m_port);
    QVERIFY(visitor.signIn(teo));
    QCOMPARE(writeNote(visitor, u"The owl looks the other way."_s), 200);
    WAIT_FOR(vexal->says(u"Teo Brandt: The owl looks the other way."_s));
}

void StoriesTest::aBoardThatIsAwayIsSaidSoUntilItIsBack()
{
    const auto vexal = startSignedIn();
    QCOMPARE(m_board->terminate(), 0);
    WAIT_FOR(vexal->says(u"Can't reach the Vexal server right now. Trying again…"_s));
    QVERIFY(showsTheBoard(*vexal));
    startBoard();
    WAIT_FOR(!vexal->says(u"Can't reach"_s));
    WAIT_FOR(vexal->shows(u"label"_s, u"Up to date"_s));
}

void StoriesTest::aRevokedTokenLeadsToTheSignInScreen()
{
    const auto vexal = startSignedIn();
    Visitor visitor(m_port, m_desk->keyring().secrets(service, account).first());
    QCOMPARE(visitor.post(u"/api/logout"_s).status, 200);
    WAIT_FOR(vexal->says(u"You're signed out. Sign in again."_s));
    WAIT_FOR(vexal->shows(button, signInButton));
    QVERIFY(!showsTheBoard(*vexal));
    WAIT_FOR(m_desk->keyring().secrets(service, account).isEmpty());
}

void StoriesTest::aSecondStartHandsItsUrlOverAndEnds()
{
    VexalProcess vexal(*m_desk, m_port);
    WAIT_FOR(vexal.shows(button, signInButton));
    VexalProcess second(*m_desk, m_port, {u"vexal://signed-in?code=1&state=2"_s});
    QCOMPARE(second.exitStatus(), 0);
    // There is no token to complete from, and nobody waits for the code.
    WAIT_FOR(vexal.says(u"Sign-in didn't finish."_s));
    QVERIFY(vexal.isRunning());
}

void StoriesTest::aSyncBringsTheNewFile()
{
    const auto vexal = startSignedIn();
    QVERIFY(!showsFile(*vexal, newFile));
    QVERIFY(vexal->press(u"Sync"_s));
    WAIT_FOR(vexal->says(u"Asked the Mac mini to sync."_s));
    WAIT_FOR(vexal->says(u"1 new file from Tarnwick Cards"_s));
    WAIT_FOR(showsFile(*vexal, newFile));
    WAIT_FOR(vexal->shows(button, u"Sync"_s));
}

void StoriesTest::stopStopsTheSync()
{
    const auto vexal = startSignedIn();
    QVERIFY(vexal->press(u"Sync"_s));
    QVERIFY(vexal->press(u"Stop"_s));
    WAIT_FOR(vexal->says(u"Stopping."_s));
    Visitor visitor(m_port);
    QVERIFY(visitor.signIn(teo));
    const auto last = [&] { return visitor.board().jobs.first(); };
    WAIT_FOR(last().finished);
    QCOMPARE(last().status, u"stopped"_s);
    WAIT_FOR(vexal->shows(button, u"Sync"_s));
    QVERIFY(!showsFile(*vexal, newFile));
}

void StoriesTest::aBoardKilledInTheMiddleOfASyncGoesOn()
{
    const auto vexal = startSignedIn();
    QVERIFY(vexal->press(u"Sync"_s));
    WAIT_FOR(vexal->shows(button, u"Stop"_s));
    m_board->kill();
    WAIT_FOR(vexal->says(u"Can't reach the Vexal server right now. Trying again…"_s));
    startBoard();
    WAIT_FOR(!vexal->says(u"Can't reach"_s));
    WAIT_FOR(showsFile(*vexal, newFile));
}

QTEST_GUILESS_MAIN(StoriesTest)
#include "tst_stories.moc"
