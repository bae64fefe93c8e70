#include "livestore.h"
#include "screen.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray fileQml = R"(
import QtQuick
import Vexal.Pieces
import Vexal.File
import Vexal.Inspector
FileView {
    state: FileState {
        store: Store
        time: PassingTime
    }
    page: InspectorState {
        store: Store
        time: PassingTime
        drafts: Drafts
    }
}
)";

const QByteArray filesQml = R"(
import QtQuick
import Vexal.Pieces
import Vexal.File
MultiView {
    state: FileState {
        store: Store
        time: PassingTime
    }
}
)";

BoardState boardOfTwo()
{
    BoardState board = aBoard({aFile(u"a"_s), aFile(u"b"_s)});
    board.files[0].title = u"Lantern Fox"_s;
    return board;
}

} // namespace

/// The file view and the view of several files, on a live board.
class FileViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_live = std::make_unique<LiveStore>(boardOfTwo()); }
    void aFileCanBeMarkedReviewedAndReopened();
    void aReportCanBeAskedForStoppedAndOpened();
    void theStripKeepsTheCurrentPageInView();
    void theStripKnowsTheCurrentPageAfterPagesCameInFront();
    void aClickInTheStripTurnsThePage();
    void theKeyboardTurnsPagesInTheStrip();
    void selectingAFileFetchesIt();
    void theFirstBoardAsksForItsFileOnce();
    void aFileThatCannotBeHadSaysWhyAndIsAskedForAgain();
    void linksThatAreMissingSayNotFound();
    void aBareSheetStandsWhereThePageWillLie();
    void longNamesLeaveTheHeaderWhole();
    void severalFilesMakeOneReport();
    void manyFilesLeaveRoomForWhatIsDoneWithThem();

private:
    Screen shown(const QByteArray &qml = fileQml) { return Screen(m_live->store, qml, {1200, 800}); }
    QQuickItem *named(Screen &screen, const char *type, const QString &name) const
    {
        return screen.only(type)->findChild<QQuickItem *>(name);
    }

    std::unique_ptr<LiveStore> m_live;
};

void FileViewTest::aFileCanBeMarkedReviewedAndReopened()
{
    m_live->client.server.on("POST", "/api/files/a/status").react([this](const Received &) {
        m_live->board.files[0].status = u"reviewed"_s;
        return Answer(200, QByteArray("{}"));
    });
    m_live->begin();
    Screen screen = shown();
    QVERIFY(screen.texts().contains(u"Mark reviewed"_s));
    screen.click(named(screen, "ReviewActions", u"review"_s));
    QTRY_VERIFY(screen.texts().contains(u"Reopen"_s));
    QTRY_VERIFY(m_live->store.busy().isEmpty());
    QCOMPARE(m_live->toast(), u"Marked reviewed."_s);
    screen.click(named(screen, "ReviewActions", u"review"_s));
    QTRY_COMPARE(m_live->client.server.requests("POST", "/api/files/a/status").size(), 2);
    QCOMPARE(m_live->client.server.requests("POST", "/api/files/a/status").last().body,
             QByteArray(R"({"status":"in_review"})"));
}

void FileViewTest::aReportCanBeAskedForStoppedAndOpened()
{
    m_live->client.server.on("POST", "/api/jobs").react([this](const Received &) {
        Job job = aJob(u"report"_s, u"running"_s);
        job.args = JobArgs{QStringList{u"a"_s}};
        m_live->board.jobs = {job};
        return Answer(200, QByteArray("{}"));
    });
    m_live->client.server.on("POST", "/api/jobs/reportrunning/stop").react([this](const Received &) {
        Report report;
        report.id = u"r"_s;
        report.file_ids = {u"a"_s};
        m_live->board.jobs[0].status = u"done"_s;
        m_live->board.reports = {report};
        return Answer(200, QByteArray("{}"));
    });
    m_live->client.server.on("GET", "/api/reports/r/pdf").answer(200, QByteArray("%PDF"));
    m_live->begin();
    Screen screen = shown();
    screen.click(named(screen, "ReviewActions", u"make"_s));
    QTRY_VERIFY(screen.texts().contains(u"Making the report"_s));
    QCOMPARE(m_live->client.server.requests("POST", "/api/jobs").first().body,
             QByteArray(R"({"file_ids":["a"],"kind":"report"})"));
    screen.click(named(screen, "ReviewActions", u"stop"_s));
    QTRY_VERIFY(screen.texts().contains(u"New report"_s));
    QVERIFY(screen.texts().contains(u"Report by Claude"_s));
    screen.click(named(screen, "ReviewActions", u"open"_s));
    QTRY_COMPARE(m_live->opener.files.size(), 1);
}

void FileViewTest::theStripKeepsTheCurrentPageInView()
{
    m_live->details.insert(u"a"_s, aDetail(u"a"_s, 60));
    m_live->begin();
    Screen screen = shown();
    const auto inView = [&] {
        for (QQuickItem *cell : screen.all("PageCell")) {
            const QRectF place = cell->mapRectToItem(screen.only("PageStrip"), cell->boundingRect());
            if (cell->property("current").toBool())
                return place.left() >= 0 && place.right() <= screen.only("PageStrip")->width();
        }
        return false;
    };
    QTRY_VERIFY(inView());
    m_live->store.turnPage(u"a"_s, 57);
    QTRY_VERIFY(inView());
    m_live->store.turnPage(u"a"_s, 3);
    QTRY_VERIFY(inView());
}

void FileViewTest::theStripKnowsTheCurrentPageAfterPagesCameInFront()
{
    m_live->begin();
    Screen screen = shown();
    QTRY_COMPARE(screen.all("PageCell").size(), 3);
    m_live->store.turnPage(u"a"_s, 2);
    FileDetail longer = aDetail(u"a"_s, 5);
    std::rotate(longer.file.pages->begin(), longer.file.pages->end() - 2, longer.file.pages->end());
    m_live->details.insert(u"a"_s, longer);
    m_live->round();
    QTRY_COMPARE(screen.all("PageCell").size(), 5);
    QList<bool> current;
    for (const QQuickItem *cell : screen.all("PageCell"))
        current.append(cell->property("current").toBool());
    QCOMPARE(current.count(true), 1);
    const QQuickItem *list = screen.only("PageStrip")->findChild<QQuickItem *>(u"list"_s);
    QCOMPARE(list->property("currentIndex").toInt(), 2);
}

void FileViewTest::aClickInTheStripTurnsThePage()
{
    m_live->begin();
    Screen screen = shown();
    QTRY_COMPARE(screen.all("PageCell").size(), 3);
    screen.click(screen.all("PageCell").at(2));
    QCOMPARE(m_live->store.shownPage(u"a"_s), 2);
    QTRY_VERIFY(screen.all("PageCell").at(2)->property("current").toBool());
}

void FileViewTest::theKeyboardTurnsPagesInTheStrip()
{
    m_live->begin();
    Screen screen = shown();
    QTRY_COMPARE(screen.all("PageCell").size(), 3);
    screen.all("PageCell").first()->parentItem()->parentItem()->forceActiveFocus();
    screen.press(Qt::Key_Right);
    QCOMPARE(m_live->store.shownPage(u"a"_s), 1);
    screen.press(Qt::Key_End);
    QCOMPARE(m_live->store.shownPage(u"a"_s), 2);
    screen.press(Qt::Key_Right);
    QCOMPARE(m_live->store.shownPage(u"a"_s), 2);
    screen.press(Qt::Key_Home);
    screen.press(Qt::Key_Left);
    QCOMPARE(m_live->store.shownPage(u"a"_s), 0);
}

void FileViewTest::selectingAFileFetchesIt()
{
    m_live->begin();
    Screen screen = shown();
    QTRY_COMPARE(m_live->asked(), QStringList{u"GET /api/files/a"_s});
    m_live->client.server.forgetRequests();
    m_live->store.selectFile(u"b"_s);
    QTRY_VERIFY(m_live->store.detail(u"b"_s));
    QCOMPARE(m_live->asked(), QStringList{u"GET /api/files/b"_s});
}

void FileViewTest::theFirstBoardAsksForItsFileOnce()
{
    Screen screen = shown();
    m_live->store.resume();
    QTRY_VERIFY(m_live->sleep.asleep());
    QCOMPARE(m_live->client.server.requests("GET", "/api/files/a").size(), 1);
}

void FileViewTest::aFileThatCannotBeHadSaysWhyAndIsAskedForAgain()
{
    m_live->begin();
    m_live->client.server.on("GET", "/api/files/b").answer(500, R"({"error":"The disk is full."})").answer(404);
    Screen screen = shown();
    m_live->store.selectFile(u"b"_s);
    QTRY_VERIFY(screen.texts().contains(u"The disk is full."_s));
    m_live->serveDetail(u"b"_s);
    screen.click(screen.only("FileProblem")->childItems().last());
    QTRY_VERIFY(m_live->store.detail(u"b"_s));
    QTRY_VERIFY(screen.all("FileProblem").isEmpty());
}

void FileViewTest::linksThatAreMissingSayNotFound()
{
    m_live->begin();
    Screen screen = shown();
    const auto pills = screen.all("LinkPill");
    QCOMPARE(pills.size(), 6);
    for (const QQuickItem *pill : pills) {
        QCOMPARE(pill->property("help").toString(), u"Not found"_s);
        QCOMPARE(pill->opacity(), 0.7);
    }
}

void FileViewTest::aBareSheetStandsWhereThePageWillLie()
{
    Gate gate;
    FileDetail detail = aDetail(u"b"_s, 1);
    detail.file.pages->first().px = QList<double>{707, 1000};
    m_live->details[u"b"_s] = detail;
    m_live->client.server.on("GET", "/api/files/b").answer(Answer(200, encode(detail)).heldBy(gate));
    m_live->begin();
    Screen screen = shown();
    m_live->store.selectFile(u"b"_s);
    const QQuickItem *sheet = screen.only("LoadingPage")->findChild<QQuickItem *>(u"sheet"_s);
    const QRectF before = sheet->mapRectToScene(sheet->boundingRect());
    gate.open();
    QTRY_VERIFY(screen.all("LoadingPage").isEmpty());
    const QQuickItem *page = screen.all("BoxMarks").value(0);
    QVERIFY(page);
    const QRectF after = page->mapRectToScene(page->boundingRect());
    QVERIFY2((before.center() - after.center()).manhattanLength() < 2, qPrintable(QString::number(before.y())));
    QVERIFY(std::abs(before.height() - after.height()) < 2);
}

void FileViewTest::longNamesLeaveTheHeaderWhole()
{
    m_live->board.users = {Person{.email = u"l@x.example"_s, .name = QString(300, u'w')}};
    Report report;
    report.id = u"r"_s;
    report.file_ids = {u"a"_s};
    report.by = u"l@x.example"_s;
    m_live->board.reports = {report};
    m_live->board.jobs = {aJob(u"report"_s, u"failed"_s)};
    m_live->board.jobs[0].args = JobArgs{QStringList{u"a"_s}};
    m_live->begin();
    for (const QSize size : {QSize(892, 700), QSize(1212, 900)}) {
        Screen screen(m_live->store, fileQml, size);
        const QQuickItem *header = screen.only("FileHeader");
        QVERIFY(screen.only("ReviewActions")->mapToItem(header, {}).x() > 200);
        for (const QQuickItem *label : screen.all("Label")) {
            if (!header->isAncestorOf(label))
                continue;
            const QRectF place = label->mapRectToItem(header, label->boundingRect());
            QVERIFY2(label->width() >= 0 && place.left() >= 0 && place.right() <= header->width(),
                     qPrintable(label->property("text").toString().left(40)));
        }
    }
}

void FileViewTest::manyFilesLeaveRoomForWhatIsDoneWithThem()
{
    QList<FileItem> files;
    for (int i = 0; i < 200; ++i)
        files.append(aFile(QString::number(i)));
    m_live->board.files = files;
    m_live->begin();
    for (const FileItem &file : files) {
        if (!m_live->store.selection().contains(file.id))
            m_live->store.selectFile(file.id, true);
    }
    Screen screen = shown(filesQml);
    QVERIFY(screen.texts().contains(u"200 files"_s));
    const QQuickItem *button = screen.only("BigButton");
    const QRectF place = button->mapRectToScene(button->boundingRect());
    QVERIFY(place.top() > 0 && place.bottom() < screen.window().height());
    QVERIFY(screen.all("Thumb").first()->mapToScene({}).y() > 0);
}

void FileViewTest::severalFilesMakeOneReport()
{
    m_live->client.server.on("POST", "/api/jobs").react([this](const Received &) {
        Report report;
        report.id = u"r"_s;
        report.file_ids = {u"b"_s, u"a"_s};
        report.at = double(m_live->clock.clock().now().toMSecsSinceEpoch());
        m_live->board.reports = {report};
        return Answer(200, QByteArray("{}"));
    });
    m_live->begin();
    m_live->store.selectFile(u"b"_s, true);
    Screen screen = shown(filesQml);
    QVERIFY(screen.texts().contains(u"2 files"_s));
    screen.click(screen.only("BigButton"));
    QTRY_VERIFY(screen.texts().contains(u"Open the report from just now"_s));
    QCOMPARE(m_live->client.server.requests("POST", "/api/jobs").first().body,
             QByteArray(R"({"file_ids":["a","b"],"kind":"report"})"));
    QCOMPARE(m_live->toast(), u"Asked the Mac mini for the report."_s);
}

QTEST_MAIN(FileViewTest)
#include "tst_fileview.moc"
