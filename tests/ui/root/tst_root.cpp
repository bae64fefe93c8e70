#include "boards.h"
#include "rootstate.h"
#include "screen.h"
#include "testclock.h"

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
    void theToastStands22PointsAboveTheFoot();
    void theToastStandsOnTheSignInScreenToo();

private:
    void show() { m_screen = std::make_unique<Screen>(*m_store, rootQml, QSize(1180, 720)); }

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

QTEST_MAIN(RootTest)
#include "tst_root.moc"
