#include "appearance.h"
#include "commands.h"
#include "livestore.h"
#include "notices.h"
#include "screen.h"

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

Job syncOf(const QString &status)
{
    Job job;
    job.id = u"j"_s;
    job.kind = u"sync"_s;
    job.status = status;
    return job;
}

} // namespace

/// The program's menu and its shortcuts, in a real window.
class MenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_screen.reset();
        m_live.reset();
    }

    void aSyncCanBeAskedForUnlessOneIsUnderWay_data();
    void aSyncCanBeAskedForUnlessOneIsUnderWay();
    void aReportNeedsACurrentFileWhoseReportIsNotBeingMade();
    void markingNeedsOneFileThatIsNotReviewed();
    void signedOutNothingCanBeAsked();

    void theMenuListsEverythingInItsOrder();
    void theMenuOpensUnderItsButtonAndByItsKey();
    void theKeyboardGoesThroughWhatCanBeChosen();
    void escapeClosesTheMenuBeforeAnythingBehindIt();
    void signedOutTheMenuStillOpens();
    void theShortcutsAct();
    void aKeyThatIsHeldAsksOnce();
    void aKeyThatIsHeldTurnsPageAfterPage();
    void theirNeighboursDoNot();
    void markReviewedWithTwoFilesDoesNothing();
    void aTextFieldKeepsItsTypingAndTheShortcutsStillAct();
    void theWayOfComparingIsChosenAndChecked();
    void theMenuSignsOut();
    void aboutSaysWhichProgramItIsAndWhoseWorkIsInIt();
    void quitClosesTheWindow();

private:
    void show(const QList<FileItem> &files = {aFile(u"a"_s), aFile(u"b"_s)}, QSize size = {1180, 720})
    {
        m_live = std::make_unique<LiveStore>(aBoard(files));
        m_live->begin();
        open(size);
    }
    void open(QSize size)
    {
        m_screen = std::make_unique<Screen>(m_live->store, rootQml, size);
        Appearance::of(*m_screen->window().engine()).setResting(true); // what opens is open at once
    }
    QStringList sent() const
    {
        QStringList lines;
        for (const Received &request : m_live->client.server.requests()) {
            if (request.method == "POST")
                lines += QString::fromUtf8(request.target + ' ' + request.body);
        }
        return lines;
    }
    bool isOpen(const char *overlay) const { return !m_screen->all(overlay).isEmpty(); }
    QQuickItem *row(const QString &title) const
    {
        for (QQuickItem *row : m_screen->all("MenuRow")) {
            if (row->property("title").toString() == title)
                return row;
        }
        qFatal("there is no such row");
    }
    QString current() const
    {
        for (const QQuickItem *row : m_screen->all("MenuRow")) {
            if (row->property("current").toBool())
                return row->property("title").toString();
        }
        return {};
    }

    std::unique_ptr<LiveStore> m_live;
    std::unique_ptr<Screen> m_screen;
};

void MenuTest::aSyncCanBeAskedForUnlessOneIsUnderWay_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("can");
    QTest::newRow("in line") << u"queued"_s << false;
    QTest::newRow("running") << u"running"_s << false;
    QTest::newRow("stuck") << u"stuck"_s << true;
    QTest::newRow("done") << u"done"_s << true;
    QTest::newRow("failed") << u"failed"_s << true;
}

void MenuTest::aSyncCanBeAskedForUnlessOneIsUnderWay()
{
    QFETCH(QString, status);
    QFETCH(bool, can);
    m_live = std::make_unique<LiveStore>();
    m_live->board.sync = syncOf(status);
    m_live->begin();
    Commands commands;
    commands.setStore(&m_live->store);
    QCOMPARE(commands.canSync(), can);
}

void MenuTest::aReportNeedsACurrentFileWhoseReportIsNotBeingMade()
{
    m_live = std::make_unique<LiveStore>(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
    m_live->begin();
    Commands commands;
    commands.setStore(&m_live->store);
    QVERIFY(commands.canMakeReport());
    m_live->store.selectFile(u"b"_s, true);
    QVERIFY(!commands.canMakeReport());
    m_live->store.selectFile(u"a"_s);
    Job job = syncOf(u"running"_s);
    job.kind = u"report"_s;
    job.args = JobArgs{};
    job.args->file_ids = QStringList{u"a"_s};
    m_live->board.jobs = {job};
    m_live->round();
    QVERIFY(!commands.canMakeReport());
    m_live->store.selectFile(u"b"_s);
    QVERIFY(commands.canMakeReport());
}

void MenuTest::markingNeedsOneFileThatIsNotReviewed()
{
    m_live = std::make_unique<LiveStore>(aBoard({aFile(u"a"_s), aFile(u"b"_s, u"reviewed"_s)}));
    m_live->begin();
    Commands commands;
    commands.setStore(&m_live->store);
    QVERIFY(commands.canMarkReviewed());
    m_live->store.selectFile(u"b"_s);
    QVERIFY(!commands.canMarkReviewed());
    m_live->store.selectFile(u"a"_s, true);
    QVERIFY(!commands.canMarkReviewed());
}

void MenuTest::signedOutNothingCanBeAsked()
{
    LiveStore live;
    Commands commands;
    commands.setStore(&live.store);
    QVERIFY(!commands.canSync() && !commands.canRefresh() && !commands.canMakeReport() && !commands.canMarkReviewed() &&
            !commands.canChangePhoto());
}

void MenuTest::theMenuListsEverythingInItsOrder()
{
    show();
    m_screen->press(Qt::Key_F10);
    QStringList titles;
    for (const QQuickItem *row : m_screen->all("MenuRow")) {
        const QString keys = row->property("keys").toString();
        titles += row->property("title").toString() + (keys.isEmpty() ? QString() : u" | "_s + keys);
    }
    QCOMPARE(titles,
             (QStringList{u"About Vexal"_s, u"Change my photo…"_s, u"Sign out"_s, u"Quit | Ctrl+Q"_s,
                          u"Sync | Ctrl+Shift+S"_s, u"Refresh | Ctrl+R"_s, u"Make report | Ctrl+Shift+P"_s,
                          u"Mark reviewed | Ctrl+D"_s, u"Activity | Ctrl+Y"_s, u"Side by side"_s, u"Overlay"_s,
                          u"Blink"_s, u"Zoom in | Ctrl+="_s, u"Zoom out | Ctrl+-"_s, u"Fit the page | Ctrl+0"_s,
                          u"Actual size | Ctrl+1"_s, u"Previous page | Ctrl+Up"_s, u"Next page | Ctrl+Down"_s}));
    const auto *panel = m_screen->only("AppMenu")->findChild<QQuickItem *>(u"panel"_s);
    QVERIFY(panel->mapRectToScene(panel->boundingRect()).bottom() <= 720 - 8);
}

void MenuTest::theMenuOpensUnderItsButtonAndByItsKey()
{
    show();
    const QQuickItem *sidebar = m_screen->only("Sidebar");
    const auto *button = sidebar->property("menuButton").value<QQuickItem *>();
    m_screen->click(button);
    QVERIFY(isOpen("AppMenu"));
    QVERIFY(button->property("open").toBool());
    m_screen->press(Qt::Key_F10);
    QTRY_VERIFY(!isOpen("AppMenu"));
    QVERIFY(!button->property("open").toBool());
    m_screen->press(Qt::Key_F10);
    QTRY_VERIFY(isOpen("AppMenu"));
}

void MenuTest::theKeyboardGoesThroughWhatCanBeChosen()
{
    show({aFile(u"a"_s, u"reviewed"_s)});
    m_screen->press(Qt::Key_F10);
    QCOMPARE(current(), u"About Vexal"_s);
    QStringList seen;
    for (int i = 0; i < 7; ++i) {
        m_screen->press(Qt::Key_Down);
        seen += current();
    }
    // What is reviewed cannot be marked again.
    QCOMPARE(seen, (QStringList{u"Change my photo…"_s, u"Sign out"_s, u"Quit"_s, u"Sync"_s, u"Refresh"_s,
                                u"Make report"_s, u"Activity"_s}));
    m_screen->press(Qt::Key_Home);
    QCOMPARE(current(), u"About Vexal"_s);
    m_screen->press(Qt::Key_Up);
    const QString last = current();
    m_screen->press(Qt::Key_End);
    QCOMPARE(current(), last);
    QVERIFY(row(last)->isEnabled());
    m_screen->press(Qt::Key_Down);
    QCOMPARE(current(), u"About Vexal"_s);
}

void MenuTest::escapeClosesTheMenuBeforeAnythingBehindIt()
{
    show();
    m_live->store.focusFinding(u"x"_s);
    m_screen->press(Qt::Key_F10);
    m_screen->press(Qt::Key_Escape);
    QTRY_VERIFY(!isOpen("AppMenu"));
    QVERIFY(m_live->store.focus());
    m_screen->press(Qt::Key_Escape);
    QVERIFY(!m_live->store.focus());
}

void MenuTest::signedOutTheMenuStillOpens()
{
    m_live = std::make_unique<LiveStore>();
    open({1180, 720});
    m_screen->press(Qt::Key_F10);
    QVERIFY(isOpen("AppMenu"));
    QVERIFY(!row(u"Sign out"_s)->isEnabled());
    QVERIFY(!row(u"Refresh"_s)->isEnabled());
    m_screen->press(Qt::Key_Return);
    QTRY_VERIFY(isOpen("About"));
}

void MenuTest::theShortcutsAct()
{
    show();
    m_screen->press(Qt::Key_R, Qt::ControlModifier);
    QVERIFY(m_live->store.refreshing());
    m_screen->press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    m_screen->press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    m_screen->press(Qt::Key_D, Qt::ControlModifier);
    QTRY_COMPARE(sent().size(), 3);
    QStringList all = sent();
    all.sort();
    QCOMPARE(all, (QStringList{u"/api/files/a/status {\"status\":\"reviewed\"}"_s,
                               u"/api/jobs {\"file_ids\":[\"a\"],\"kind\":\"report\"}"_s,
                               u"/api/jobs {\"kind\":\"sync\"}"_s}));
    m_screen->press(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(m_live->store.showActivity());
    m_screen->press(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(!m_live->store.showActivity());
}

void MenuTest::aKeyThatIsHeldAsksOnce()
{
    show();
    m_screen->hold(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(m_live->store.showActivity());
}

void MenuTest::aKeyThatIsHeldTurnsPageAfterPage()
{
    m_live = std::make_unique<LiveStore>(aBoard({aFile(u"a"_s)}));
    m_live->details.insert(u"a"_s, aDetail(u"a"_s, 6));
    m_live->serveDetail(u"a"_s);
    m_live->begin();
    open({1180, 720});
    QTRY_VERIFY(m_live->store.details().contains(u"a"_s));
    m_screen->hold(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_live->store.shownPage(u"a"_s), 4);
}

void MenuTest::theirNeighboursDoNot()
{
    show();
    m_screen->press(Qt::Key_S, Qt::ControlModifier);
    m_screen->press(Qt::Key_P, Qt::ControlModifier);
    m_screen->press(Qt::Key_D, Qt::ControlModifier);
    QTRY_COMPARE(sent().size(), 1);
    QVERIFY(sent().first().startsWith(u"/api/files/a/status"_s));
}

void MenuTest::markReviewedWithTwoFilesDoesNothing()
{
    show();
    m_live->store.selectFile(u"b"_s, true);
    m_screen->press(Qt::Key_D, Qt::ControlModifier);
    m_screen->press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(sent(), QStringList{u"/api/jobs {\"kind\":\"sync\"}"_s});
}

void MenuTest::aTextFieldKeepsItsTypingAndTheShortcutsStillAct()
{
    show();
    QTRY_VERIFY(!m_screen->all("TextArea").isEmpty());
    QQuickItem *field = m_screen->all("TextArea").first();
    m_screen->click(field);
    QTRY_VERIFY(field->property("writing").toBool());
    for (const char letter : "srpdy")
        if (letter != '\0')
            QTest::keyClick(&m_screen->window(), letter);
    QCOMPARE(field->property("text").toString(), u"srpdy"_s);
    m_screen->press(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(m_live->store.showActivity());
    m_screen->press(Qt::Key_Escape);
    QVERIFY(!m_live->store.showActivity());
    m_screen->press(Qt::Key_D, Qt::ControlModifier);
    QTRY_COMPARE(sent().size(), 1);
    QCOMPARE(field->property("text").toString(), u"srpdy"_s);
}

void MenuTest::theWayOfComparingIsChosenAndChecked()
{
    show();
    m_screen->press(Qt::Key_F10);
    QVERIFY(row(u"Side by side"_s)->property("checked").toBool());
    m_screen->click(row(u"Overlay"_s));
    QCOMPARE(m_live->store.mode(), CompareMode::Overlay);
    QTRY_VERIFY(!isOpen("AppMenu"));
    m_screen->press(Qt::Key_F10);
    QVERIFY(row(u"Overlay"_s)->property("checked").toBool());
    QVERIFY(!row(u"Side by side"_s)->property("checked").toBool());
    m_live->store.selectFile(u"b"_s, true);
    QTRY_VERIFY(!row(u"Overlay"_s)->isEnabled());
}

void MenuTest::theMenuSignsOut()
{
    show();
    m_screen->press(Qt::Key_F10);
    m_screen->click(row(u"Sign out"_s));
    QTRY_VERIFY(isOpen("SignInView"));
    QVERIFY(!m_live->store.signedIn());
}

void MenuTest::aboutSaysWhichProgramItIsAndWhoseWorkIsInIt()
{
    for (const Notice &notice : notices())
        QVERIFY(!notice.name.isEmpty() && !notice.licence.isEmpty() && !notice.holder.isEmpty());
    show();
    m_screen->press(Qt::Key_F10);
    m_screen->press(Qt::Key_Return);
    QTRY_VERIFY(isOpen("About"));
    QVERIFY(m_screen->texts().contains(Imprint::version()));
    for (const QString &name :
         {u"Inter"_s, u"Framework7 Icons"_s, u"Qt"_s, u"libcurl"_s, u"simdjson"_s, u"QtKeychain"_s})
        QVERIFY2(m_screen->texts().contains(name), qPrintable(name));
    m_screen->press(Qt::Key_Return);
    QTRY_VERIFY(!isOpen("About"));
}

void MenuTest::quitClosesTheWindow()
{
    show();
    m_screen->press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!m_screen->window().isVisible());
}

QTEST_MAIN(MenuTest)
#include "tst_menu.moc"
