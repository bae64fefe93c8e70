#include "livestore.h"
#include "rootstate.h"
#include "screen.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray rootQml = R"(
import QtQuick
import Vexal.Root
RootView {}
)";

Sample sampleOf(const QList<FileItem> &files)
{
    Sample sample;
    sample.board = aBoard(files);
    for (const FileItem &file : files)
        sample.details.insert(file.id, aDetail(file.id, 1));
    return sample;
}

} // namespace

class RootTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void signedOutOnlyTheSignInScreenShowsWhateverTheBoardHolds();
    void theSidebarIs288PointsWide();
    void aBoardWithoutFilesSaysWhatToPress();
    void aBoardWithFilesAndNoneChosenSaysSo();
    void oneFileShowsItsPages();
    void severalFilesShowTogetherEvenWithAFocus();
    void aFileThatLeftTheBoardIsNotShown();
    void whatIsShownComesAndGoesWithoutAWarning();
    void theToastStands22PointsAboveTheFoot();
    void theToastStandsOnTheSignInScreenToo();
    void aProblemShowsABannerOverTheBoardUntilItHasPassed();
    void aProblemBeforeTheFirstBoardShowsNone();
    void aNewerVersionIsOfferedAboveTheProblem();
    void anOfferWithoutNotesShowsNone();
    void aTextOfAMegabyteReachesNoScreenWhole();
    void signingInWaitsForThePersonWhoMayThinkBetterOfIt();
    void theSignInPageCanBeOpenedElsewhere();
    void theAccountMenuSignsOut();
    void theAccountMenuChangesThePhoto();

private:
    const QSize m_size{1180, 720};
    void show() { m_screen = std::make_unique<Screen>(*m_store, rootQml, m_size); }

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<Screen> m_screen;
};

void RootTest::init()
{
    m_screen.reset();
    m_store = std::make_unique<Store>(m_clock.clock());
}

void RootTest::signedOutOnlyTheSignInScreenShowsWhateverTheBoardHolds()
{
    m_store->takeBoard(aBoard({aFile(u"a"_s)}));
    show();
    QVERIFY(m_screen->only("SignInView"));
    QVERIFY(m_screen->all("BoardView").isEmpty());
    QVERIFY(m_screen->texts().contains(u"Supplier proofs, checked against what we sent."_s));
}

void RootTest::theSidebarIs288PointsWide()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s)}));
    show();
    const QQuickItem *sidebar = m_screen->only("Sidebar");
    QCOMPARE(sidebar->mapRectToScene(sidebar->boundingRect()), QRectF(0, 0, 288, 720));
    QVERIFY(m_screen->all("SignInView").isEmpty());
}

void RootTest::aBoardWithoutFilesSaysWhatToPress()
{
    m_store->takeSample(sampleOf({}));
    show();
    QVERIFY(m_screen->texts().contains(u"Nothing to review yet."_s));
    QVERIFY(m_screen->texts().contains(u"Press Sync. Claude on the Mac mini checks supplier mail for new proofs."_s));
}

void RootTest::aBoardWithFilesAndNoneChosenSaysSo()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s)}));
    m_store->selectFile(u"a"_s, true);
    show();
    QVERIFY(m_screen->texts().contains(u"Pick a file."_s));
    QVERIFY(m_screen->texts().contains(u"Pick one on the left to compare it with our files."_s));
}

void RootTest::oneFileShowsItsPages()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s), aFile(u"b"_s)}));
    show();
    QVERIFY(m_screen->only("FileView"));
    QVERIFY(m_screen->all("MultiView").isEmpty());
}

void RootTest::severalFilesShowTogetherEvenWithAFocus()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s), aFile(u"b"_s)}));
    show();
    m_store->selectFile(u"b"_s, true);
    m_store->focusFinding(u"x"_s);
    QVERIFY(m_screen->only("MultiView"));
    QVERIFY(m_screen->all("FileView").isEmpty());
    QVERIFY(m_screen->texts().contains(u"2 files"_s));
}

void RootTest::aFileThatLeftTheBoardIsNotShown()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s), aFile(u"b"_s)}));
    show();
    m_store->takeBoard(aBoard({aFile(u"b"_s)}, 2));
    QVERIFY(m_screen->all("FileView").isEmpty());
    QVERIFY(m_screen->texts().contains(u"Pick a file."_s));
}

void RootTest::whatIsShownComesAndGoesWithoutAWarning()
{
    Sample sample = sampleOf({aFile(u"a"_s), aFile(u"b"_s)});
    FileDetail &detail = sample.details[u"a"_s];
    detail = aDetail(u"a"_s, 2, {aFinding(u"x"_s, 0, u"high"_s), aFinding(u"y"_s, 0, u"low"_s)});
    detail.findings[0].against = detail.findings[1].against = u"submitted"_s;
    detail.findings[1].kind = u"pass"_s;
    detail.file.pages->first().refs = QMap<QString, RefPage>{{u"submitted"_s, {}}};
    detail.comments = {{.id = u"n"_s, .file_id = u"a"_s, .page = 0, .finding_id = u"x"_s, .text = u"Why?"_s}};
    m_store->takeSample(sample);
    show();
    QTRY_COMPARE(m_screen->all("StandingCard").size(), 1);
    // Another chosen as well, then none; the screen asks QTest to fail on a warning.
    for (const QString &toggled : {u"b"_s, u"b"_s, u"a"_s, u"a"_s}) {
        m_store->selectFile(toggled, true);
        QTRY_COMPARE(m_screen->all("FileView").size(), m_store->selection() == QSet{u"a"_s} ? 1 : 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void RootTest::theToastStands22PointsAboveTheFoot()
{
    m_store->takeSample(sampleOf({aFile(u"a"_s)}));
    show();
    m_store->showToast(u"Note added."_s);
    const QQuickItem *toast = m_screen->only("ToastView");
    QTRY_COMPARE(toast->mapRectToScene(toast->boundingRect()).bottom(), 720.0 - 22);
    QVERIFY(m_screen->texts().contains(u"Note added."_s));
    m_store->clearToast(m_store->toast()->id);
    QTRY_VERIFY(m_screen->all("ToastView").isEmpty());
}

void RootTest::theToastStandsOnTheSignInScreenToo()
{
    show();
    m_store->showToast(u"You're signed out. Sign in again."_s);
    QVERIFY(m_screen->only("ToastView"));
}

void RootTest::aProblemShowsABannerOverTheBoardUntilItHasPassed()
{
    LiveStore live;
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    QVERIFY(screen.all("OfflineBanner").isEmpty());
    live.client.server.goDown();
    live.round();
    QTRY_COMPARE(screen.all("OfflineBanner").size(), 1);
    QVERIFY(screen.texts().contains(u"Can't reach the Vexal server right now. Trying again…"_s));
    QVERIFY(screen.texts().contains(u"What's here stays. It tries again on its own."_s));
    QVERIFY(screen.only("FileView"));
    live.client.server.comeUp();
    live.round();
    QTRY_VERIFY(screen.all("OfflineBanner").isEmpty());
}

void RootTest::aProblemBeforeTheFirstBoardShowsNone()
{
    LiveStore live;
    live.client.server.on("GET", "/api/state").answer(500);
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    QVERIFY(live.store.problem());
    QVERIFY(screen.all("OfflineBanner").isEmpty());
    QVERIFY(screen.texts().contains(u"Loading the board…"_s));
}

void RootTest::aNewerVersionIsOfferedAboveTheProblem()
{
    LiveStore live;
    live.client.server.on("GET", "/version.json")
        .answer(200, R"({"version":"2.0","build":8,"url":"https://x.example/","notes":"Faster\nand calmer."})");
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    QTRY_VERIFY(screen.texts().contains(u"Vexal 2.0 is ready."_s));
    QVERIFY(screen.texts().contains(u"Faster and calmer."_s));
    live.client.server.goDown();
    live.round();
    QTRY_COMPARE(screen.all("OfflineBanner").size(), 1);
    const auto head = [&](const char *type) { return screen.only(type)->mapToScene({}).y(); };
    QCOMPARE(head("UpdateBanner"), 0.0);
    QTRY_COMPARE(head("OfflineBanner"), screen.only("UpdateBanner")->height());
    screen.click(screen.only("UpdateBanner")->findChild<QQuickItem *>(u"close"_s));
    QTRY_VERIFY(screen.all("UpdateBanner").isEmpty());
    QVERIFY(!live.store.update());
}

void RootTest::anOfferWithoutNotesShowsNone()
{
    LiveStore live;
    live.client.server.on("GET", "/version.json").answer(200, R"({"version":"2.0","build":8,"url":"no url at all"})");
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    QTRY_VERIFY(screen.texts().contains(u"Vexal 2.0 is ready."_s));
    // What is no page of the web opens nothing, and says nothing.
    screen.click(screen.only("UpdateBanner")->findChild<QQuickItem *>(u"download"_s));
    QVERIFY(live.store.update());
    QVERIFY(!live.store.toast());
}

void RootTest::aTextOfAMegabyteReachesNoScreenWhole()
{
    const QString vast = u"vast "_s.repeated(200'000);
    FileItem file = aFile(u"a"_s);
    file.title = file.supplier = file.po = file.sender = vast;
    Finding finding = aFinding(u"x"_s, 0, u"high"_s);
    finding.against = u"submitted"_s;
    finding.kind = u"words"_s;
    finding.title = vast;
    finding.detail = finding.before = finding.state_by = vast;
    finding.after = vast + u'.';
    finding.box = {0.1, 0.1, 0.2, 0.2};
    const Note note{.id = u"n"_s, .file_id = file.id, .page = 0, .x = 0.5, .y = 0.5, .text = vast, .by = vast};
    Sample sample = sampleOf({file});
    FileDetail &detail = sample.details[file.id];
    const QList<Page> pages = *detail.file.pages;
    detail.file = file;
    detail.file.pages = pages;
    detail.file.pages->first().label = vast;
    detail.findings = {finding};
    detail.comments = {note};
    Job job = aJob(u"sync"_s, u"running"_s);
    job.step = job.requested_by = vast;
    job.steps = {vast, vast};
    sample.board.sync = job;
    sample.board.users = {aPerson(vast, vast)};
    sample.board.events = {{.id = 1, .by = vast, .kind = u"comment"_s, .text = vast}};

    QElapsedTimer since;
    since.start();
    show();
    m_store->takeSample(sample);
    m_store->selectFile(file.id);
    m_store->focusFinding(finding.id);
    m_store->setShowActivity(true);
    m_store->showToast(vast);
    QTRY_VERIFY(m_screen->texts().contains(shownText(vast)));
    QVERIFY(QQuickTest::qWaitForPolish(&m_screen->window()));
    for (const QString &text : m_screen->texts())
        QVERIFY2(text.size() < 10 * longestShown, qPrintable(text.left(40)));
    QCOMPARE(m_screen->all("StandingCard").size(), 1);
    QCOMPARE(m_screen->all("NoteRow").size(), 1);
    QVERIFY2(since.elapsed() < 10'000, qPrintable(QString::number(since.elapsed())));
}

void RootTest::signingInWaitsForThePersonWhoMayThinkBetterOfIt()
{
    LiveStore live;
    live.client.credentials.forget();
    Screen screen(live.store, rootQml, m_size);
    screen.click(screen.only("SignInButton"));
    QTRY_VERIFY(screen.texts().contains(u"Opening Google…"_s));
    QCOMPARE(live.browser.pages.size(), 1);
    screen.click(screen.only("SignInButton"));
    QCOMPARE(live.browser.pages.size(), 2);
    QVERIFY(live.store.signingIn());
    const auto *cancel = screen.only("SignInView")->findChild<QQuickItem *>(u"cancel"_s);
    QTRY_COMPARE(cancel->parentItem()->opacity(), 1.0);
    screen.click(cancel);
    QTRY_VERIFY(screen.texts().contains(u"Sign in with Google"_s));
    QVERIFY(!live.store.toast());
}

void RootTest::theSignInPageCanBeOpenedElsewhere()
{
    LiveStore live;
    live.client.credentials.forget();
    Screen screen(live.store, rootQml, m_size);
    screen.click(screen.only("SignInButton"));
    const auto *link = screen.only("SignInView")->findChild<QQuickItem *>(u"link"_s);
    QTRY_COMPARE(link->parentItem()->opacity(), 1.0);
    screen.click(link);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), live.store.signInPage().toString(QUrl::FullyEncoded));
    QCOMPARE(live.toast(), u"Link copied."_s);
}

void RootTest::theAccountMenuSignsOut()
{
    LiveStore live;
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    screen.click(screen.only("AccountMenu"));
    QTRY_VERIFY(screen.texts().contains(u"Change my photo…"_s));
    screen.press(Qt::Key_Down);
    screen.press(Qt::Key_Return);
    QVERIFY(!live.store.signedIn());
    QTRY_VERIFY(screen.only("SignInView"));
}

void RootTest::theAccountMenuChangesThePhoto()
{
    LiveStore live;
    live.begin();
    Screen screen(live.store, rootQml, m_size);
    screen.click(screen.only("AccountMenu"));
    QTRY_VERIFY(screen.texts().contains(u"Sign out"_s));
    screen.press(Qt::Key_Return);
    QCOMPARE(live.picker.messages, QStringList{u"Pick a photo for your profile."_s});
    QVERIFY(live.store.signedIn());
}

QTEST_MAIN(RootTest)
#include "tst_root.moc"
