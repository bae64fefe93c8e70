#include "boards.h"
#include "screen.h"
#include "synclast.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray cardQml = R"(
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar
SyncCard {
    canAct: true
    state: SyncState {
        store: Store
        time: PassingTime
    }
}
)";

BoardState withSync(const QString &id, const QString &status, qint64 rev)
{
    BoardState board = aBoard({aFile(u"f"_s)}, rev);
    Job sync = aJob(u"sync"_s, status);
    sync.id = id;
    sync.steps = QStringList{u"Read the mail"_s, u"Filed the proofs"_s};
    board.sync = sync;
    return board;
}

} // namespace

/// The card of the mail check: what stands there in which state, and how the last one unfolds.
class SyncTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSyncUnderWayStandsInPlaceOfTheButton_data();
    void aSyncUnderWayStandsInPlaceOfTheButton();
    void aSyncThatIsOverLeavesTheButtonAndItsOutcome_data();
    void aSyncThatIsOverLeavesTheButtonAndItsOutcome();
    void withoutASyncThereIsTheButton();
    void theLastSyncStaysUnfoldedThroughRefreshesAndFoldsForANewOne();
    void namesThatRunTheOtherWayTurnNothingElse();

private:
    void take(const BoardState &board) { m_store->takeBoard(board); }
    bool unfolded() const { return m_screen->texts().contains(u"Read the mail"_s); }

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<Screen> m_screen;
};

void SyncTest::init()
{
    m_screen.reset();
    m_store = std::make_unique<Store>(m_clock.clock());
    m_store->takeBoard(aBoard({aFile(u"f"_s)}));
    m_screen = std::make_unique<Screen>(*m_store, cardQml, QSize(264, 500));
}

void SyncTest::aSyncUnderWayStandsInPlaceOfTheButton_data()
{
    QTest::addColumn<QString>("status");
    for (const char *status : {"queued", "running", "stuck"})
        QTest::newRow(status) << QString::fromLatin1(status);
}

void SyncTest::aSyncUnderWayStandsInPlaceOfTheButton()
{
    QFETCH(QString, status);
    take(withSync(u"s"_s, status, 2));
    QTRY_COMPARE(m_screen->all("JobBlock").size(), 1);
    QTRY_VERIFY(m_screen->all("BigButton").isEmpty());
    QVERIFY(m_screen->all("SyncLast").isEmpty());
}

void SyncTest::aSyncThatIsOverLeavesTheButtonAndItsOutcome_data()
{
    QTest::addColumn<QString>("status");
    for (const char *status : {"done", "failed", "stopped", "unheard of"})
        QTest::newRow(status) << QString::fromLatin1(status);
}

void SyncTest::aSyncThatIsOverLeavesTheButtonAndItsOutcome()
{
    QFETCH(QString, status);
    take(withSync(u"s"_s, u"running"_s, 2));
    QTRY_COMPARE(m_screen->all("JobBlock").size(), 1);
    take(withSync(u"s"_s, status, 3));
    QTRY_VERIFY(m_screen->all("JobBlock").isEmpty());
    QTRY_COMPARE(m_screen->all("BigButton").size(), 1);
    QCOMPARE(m_screen->all("SyncLast").size(), 1);
}

void SyncTest::withoutASyncThereIsTheButton()
{
    QCOMPARE(m_screen->all("BigButton").size(), 1);
    QVERIFY(m_screen->all("SyncLast").isEmpty());
}

void SyncTest::theLastSyncStaysUnfoldedThroughRefreshesAndFoldsForANewOne()
{
    take(withSync(u"s"_s, u"done"_s, 2));
    QTRY_COMPARE(m_screen->all("SyncLast").size(), 1);
    QVERIFY(!unfolded());
    m_screen->click(m_screen->only("SyncLast")->childItems().constFirst());
    QTRY_VERIFY(unfolded());
    BoardState later = withSync(u"s"_s, u"done"_s, 3);
    later.sync->steps->append(u"Told everybody"_s);
    take(later);
    QTRY_VERIFY(m_screen->texts().contains(u"Told everybody"_s));
    QVERIFY(unfolded());
    take(withSync(u"another"_s, u"done"_s, 4));
    QTRY_VERIFY(!unfolded());
}

void SyncTest::namesThatRunTheOtherWayTurnNothingElse()
{
    BoardState board = withSync(u"s"_s, u"done"_s, 2);
    board.users = {Person{.email = u"m@x.example"_s, .name = u"محمد"_s}};
    board.sync->requested_by = u"m@x.example"_s;
    const QString text = syncLast(*board.sync, &board, m_clock.clock()).text;
    QVERIFY2(text.startsWith(u"Nothing new · \u2068محمد\u2069 · "_s), qPrintable(text));
}

QTEST_MAIN(SyncTest)
#include "tst_sync.moc"
