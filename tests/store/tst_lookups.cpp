#include "boards.h"
#include "store.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vexal;

class TestLookups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currentIsTheOneSelectedFile()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        store.selectFile(u"b"_s);
        QVERIFY(store.current());
        QCOMPARE(store.current()->id, u"b"_s);
        QCOMPARE(store.current(), store.findFile(u"b"_s));
    }

    void withNoBoardOrNothingSelectedThereIsNoCurrent()
    {
        Store store(m_clock.clock());
        QVERIFY(!store.current());
        store.selectFile(u"a"_s);
        QVERIFY(!store.current());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        QVERIFY(store.current());
        store.selectFile(u"a"_s, true);
        QVERIFY(!store.current());
    }

    void withTwoSelectedThereIsNoCurrent()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        store.selectFile(u"b"_s, true);
        QCOMPARE(store.selection().size(), 2);
        QVERIFY(!store.current());
    }

    void aSelectedFileThatLeftTheBoardIsNotCurrent()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        store.takeBoard(aBoard({aFile(u"b"_s)}, 2));
        QCOMPARE(store.selection(), QSet{u"a"_s});
        QVERIFY(!store.current());
        store.takeBoard(aBoard({aFile(u"b"_s), aFile(u"a"_s)}, 3));
        QCOMPARE(store.current(), &store.board()->files.at(1));
    }

    void ofTwoFilesWithOneIdTheFirstIsFound()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s, u"new"_s), aFile(u"b"_s, u"reviewed"_s)}));
        QCOMPARE(store.findFile(u"b"_s), &store.board()->files.at(1));
    }

    void everyFileOfABigBoardIsFound()
    {
        QList<FileItem> files;
        for (int i = 0; i < 20'000; ++i)
            files.append(aFile(QString::number(i)));
        Store store(m_clock.clock());
        store.takeBoard(aBoard(files));
        for (qsizetype i = 0; i < files.size(); ++i)
            QCOMPARE(store.findFile(QString::number(i)), &store.board()->files.at(i));
        QVERIFY(!store.findFile(u"20000"_s));
    }

    void aDetailIsFoundByItsFile()
    {
        Store store(m_clock.clock());
        QVERIFY(!store.detail(u"a"_s));
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 3));
        QCOMPARE(*store.detail(u"a"_s), aDetail(u"a"_s, 3));
        QVERIFY(!store.detail(u"b"_s));
    }

    void aDetailIsKeptUnderTheFileItWasAskedFor()
    {
        Store store(m_clock.clock());
        store.takeDetail(u"a"_s, aDetail(u"b"_s, 3));
        QVERIFY(store.detail(u"a"_s));
        QVERIFY(!store.detail(u"b"_s));
    }

    void namesComeFromTheBoardHeld()
    {
        Store store(m_clock.clock());
        QCOMPARE(store.displayName({}), u"Claude"_s);
        QCOMPARE(store.displayName(u"ada@lanternhouse.example"_s), u"Ada"_s);
        BoardState board = aBoard();
        board.users = {aPerson(u"gb@x.org"_s, u"Grace Hopper"_s)};
        store.takeBoard(board);
        QCOMPARE(store.displayName(u"ada@lanternhouse.example"_s), u"You"_s);
        QCOMPARE(store.displayName(u"gb@x.org"_s), u"Grace"_s);
        QCOMPARE(store.displayName(u"sam.lee@x.org"_s), u"Sam.lee"_s);
    }

    void activeWork_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("active");
        QTest::newRow("queued") << u"queued"_s << true;
        QTest::newRow("running") << u"running"_s << true;
        QTest::newRow("stuck") << u"stuck"_s << false;
        QTest::newRow("done") << u"done"_s << false;
        QTest::newRow("failed") << u"failed"_s << false;
        QTest::newRow("stopped") << u"stopped"_s << false;
        QTest::newRow("of tomorrow") << u"paused"_s << false;
    }

    void activeWork()
    {
        QFETCH(QString, status);
        BoardState withSync = aBoard();
        withSync.sync = aJob(u"sync"_s, status);
        BoardState withJob = aBoard();
        withJob.jobs = {aJob(u"report"_s, u"done"_s), aJob(u"report"_s, status)};
        for (const BoardState &board : {withSync, withJob}) {
            Store store(m_clock.clock());
            store.takeBoard(board);
            QTEST(store.activeWork(), "active");
        }
    }

    void withoutABoardNothingIsActiveOrNew()
    {
        const Store store(m_clock.clock());
        QVERIFY(!store.activeWork());
        QVERIFY(!store.newCount());
    }

    void noNewFileIsNoCount()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard());
        QVERIFY(!store.newCount());
        store.takeBoard(aBoard({aFile(u"a"_s, u"in_review"_s), aFile(u"b"_s, u"reviewed"_s)}, 2));
        QVERIFY(!store.newCount());
    }

    void newFilesAreCountedInDecimal()
    {
        QList<FileItem> files{aFile(u"x"_s, u"reviewed"_s)};
        for (int i = 0; i < 1'234; ++i)
            files.append(aFile(QString::number(i), u"new"_s));
        Store store(m_clock.clock());
        store.takeBoard(aBoard(files));
        QCOMPARE(store.newCount(), u"1234"_s);
    }

    void relativeTimesMoveWithTheClock()
    {
        TestClock clock;
        const Store store(clock.clock());
        const QDateTime moment = clock.now();
        QCOMPARE(store.relativeTime(moment), u"just now"_s);
        clock.moveOn(50s);
        QCOMPARE(store.relativeTime(moment), u"0 min ago"_s);
        clock.moveOn(59min);
        QCOMPARE(store.relativeTime(moment), u"59 min ago"_s);
        clock.moveOn(24h);
        QCOMPARE(store.relativeTime(moment), u"Yesterday 12:00"_s);
    }

    void compareModesAreLabelledInTheirOrder()
    {
        QCOMPARE(modeLabel(CompareMode::Side), u"Side by side"_s);
        QCOMPARE(modeLabel(CompareMode::Overlay), u"Overlay"_s);
        QCOMPARE(modeLabel(CompareMode::Blink), u"Blink"_s);
        QCOMPARE(QMetaEnum::fromType<CompareMode>().keyCount(), 3);
        QVERIFY(CompareMode::Side < CompareMode::Overlay && CompareMode::Overlay < CompareMode::Blink);
    }

private:
    TestClock m_clock;
};

QTEST_GUILESS_MAIN(TestLookups)
#include "tst_lookups.moc"
