#include "boards.h"
#include "store.h"
#include "testclock.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// Boards, details and samples as they come in.
class TestArrivals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewStoreIsEmpty()
    {
        const Store store(m_clock.clock());
        QVERIFY(!store.signedIn());
        QVERIFY(!store.board());
        QVERIFY(store.details().isEmpty());
        QVERIFY(store.selection().isEmpty());
        QVERIFY(store.page().isEmpty());
        QVERIFY(!store.focus());
        QCOMPARE(store.against(), u"submitted"_s);
        QCOMPARE(store.mode(), CompareMode::Side);
        QVERIFY(!store.problem());
        QVERIFY(!store.lastOK());
        QVERIFY(!store.toast());
        QVERIFY(!store.pinning());
        QVERIFY(!store.draftPin());
        QVERIFY(!store.draftFinding());
        QVERIFY(store.busy().isEmpty());
        QVERIFY(!store.update());
        QVERIFY(!store.refreshing());
        QVERIFY(!store.showActivity());
        QVERIFY(!store.sample());
    }

    void aBoardReplacesTheOneBefore()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        const BoardState next = aBoard({aFile(u"b"_s), aFile(u"c"_s)}, 2);
        store.takeBoard(next);
        QCOMPARE(store.board(), next);
        QVERIFY(!store.findFile(u"a"_s));
        QVERIFY(store.findFile(u"c"_s));
    }

    void anEqualBoardIsNoChange()
    {
        Store store(m_clock.clock());
        QSignalSpy boards(&store, &Store::boardChanged);
        QSignalSpy selections(&store, &Store::selectionChanged);
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        QCOMPARE(boards.size(), 1);
        QCOMPARE(selections.size(), 1);
        store.takeBoard(aBoard({aFile(u"a"_s, u"reviewed"_s)}));
        QCOMPARE(boards.size(), 2);
        QCOMPARE(selections.size(), 1);
    }

    void theFirstFileThatIsNotReviewedIsSelected()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s, u"in_review"_s), aFile(u"c"_s, u"new"_s)}));
        QCOMPARE(store.selection(), QSet{u"b"_s});
    }

    void aFileOfUnknownStatusIsNotReviewed()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s, u"archived"_s)}));
        QCOMPARE(store.selection(), QSet{u"b"_s});
    }

    void whenAllAreReviewedTheFirstFileIsSelected()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s, u"reviewed"_s)}));
        QCOMPARE(store.selection(), QSet{u"a"_s});
    }

    void aBoardWithoutFilesSelectsNothing()
    {
        Store store(m_clock.clock());
        QSignalSpy selections(&store, &Store::selectionChanged);
        store.takeBoard(aBoard());
        QVERIFY(store.selection().isEmpty());
        QVERIFY(selections.isEmpty());
    }

    void aSelectionStaysAsItIs()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        store.selectFile(u"b"_s);
        store.focusFinding(u"f"_s);
        store.placePin({0.1, 0.2});
        store.takeBoard(aBoard({aFile(u"a"_s)}, 2));
        QCOMPARE(store.selection(), QSet{u"b"_s});
        QCOMPARE(store.focus(), u"f"_s);
        QVERIFY(store.draftPin());
        store.selectFile(u"a"_s, true);
        store.takeBoard(aBoard({aFile(u"c"_s)}, 3));
        QCOMPARE(store.selection(), (QSet{u"a"_s, u"b"_s}));
    }

    void anEmptiedSelectionIsFilledByTheNextBoardEvenAnEqualOne()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        store.selectFile(u"a"_s, true);
        QVERIFY(store.selection().isEmpty());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        QCOMPARE(store.selection(), QSet{u"a"_s});
    }

    void aSelectionThatABoardMakesDropsFocusAndDraft()
    {
        Store store(m_clock.clock());
        store.focusFinding(u"f"_s);
        store.answerFinding(u"f"_s);
        store.placePin({0.5, 0.5});
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        QVERIFY(!store.focus());
        QVERIFY(!store.draftPin());
        QVERIFY(!store.draftFinding());
    }

    void aFileOpensOnThePageOfItsFirstHighFinding()
    {
        Store store(m_clock.clock());
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9,
                                         {aFinding(u"1"_s, 1, u"medium"_s), aFinding(u"2"_s, 2, u"low"_s),
                                          aFinding(u"3"_s, 4, u"high"_s), aFinding(u"4"_s, 0, u"high"_s)}));
        QCOMPARE(store.shownPage(u"a"_s), 4);
    }

    void aFileWithoutHighFindingsOpensOnItsFirstPage()
    {
        Store store(m_clock.clock());
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9, {aFinding(u"1"_s, 3, u"medium"_s)}));
        QCOMPARE(store.shownPage(u"a"_s), 0);
        QVERIFY(store.page().contains(u"a"_s));
    }

    void aPageThatWasChosenStays()
    {
        const FileDetail detail = aDetail(u"a"_s, 9, {aFinding(u"1"_s, 4, u"high"_s)});
        Store store(m_clock.clock());
        store.turnPage(u"a"_s, 0);
        store.takeDetail(u"a"_s, detail);
        QCOMPARE(store.shownPage(u"a"_s), 0);
        store.turnPage(u"a"_s, 7);
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9, {aFinding(u"2"_s, 2, u"high"_s)}));
        QCOMPARE(store.shownPage(u"a"_s), 7);
    }

    void aFirstDetailThatNamesNoHighFindingChoosesForGood()
    {
        Store store(m_clock.clock());
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9));
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9, {aFinding(u"1"_s, 4, u"high"_s)}));
        QCOMPARE(store.shownPage(u"a"_s), 0);
    }

    void anEqualDetailIsNoChange()
    {
        Store store(m_clock.clock());
        QSignalSpy details(&store, &Store::detailsChanged);
        QSignalSpy pages(&store, &Store::pageChanged);
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 2));
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 2));
        QCOMPARE(details.size(), 1);
        QCOMPARE(pages.size(), 1);
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 3));
        QCOMPARE(details.size(), 2);
        QCOMPARE(pages.size(), 1);
    }

    void aDetailThatMovesThePageOnTheCanvasDropsThePin()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9));
        store.turnPage(u"a"_s, 8);
        store.focusFinding(u"f"_s);
        store.placePin({0.5, 0.5});
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 4));
        QCOMPARE(store.shownPage(u"a"_s), 3);
        QVERIFY(!store.draftPin());
        QCOMPARE(store.focus(), u"f"_s);
    }

    void aDetailThatLeavesThePageOnTheCanvasLeavesThePin()
    {
        Store store(m_clock.clock());
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 9));
        store.placePin({0.5, 0.5});
        store.takeDetail(u"a"_s, aDetail(u"a"_s, 4));
        store.takeDetail(u"b"_s, aDetail(u"b"_s, 9, {aFinding(u"1"_s, 4, u"high"_s)}));
        QVERIFY(store.draftPin());
    }

    void aSampleIsTakenAsIfFetchedBySomeoneSignedIn()
    {
        Sample sample;
        sample.board = aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s), aFile(u"c"_s)});
        sample.details = {{u"a"_s, aDetail(u"a"_s, 5, {aFinding(u"1"_s, 1, u"high"_s)})},
                          {u"b"_s, aDetail(u"b"_s, 5, {aFinding(u"2"_s, 2, u"high"_s)})}};
        Store store(m_clock.clock());
        store.takeSample(sample);
        QVERIFY(store.signedIn());
        QVERIFY(store.sample());
        QCOMPARE(store.lastOK(), m_clock.now());
        QCOMPARE(store.board(), sample.board);
        QCOMPARE(store.details(), sample.details);
        QCOMPARE(store.selection(), QSet{u"b"_s});
        QCOMPARE(store.shownPage(u"b"_s), 2);
        store.selectFile(u"a"_s);
        QCOMPARE(store.shownPage(u"a"_s), 1);
    }

    void aSampleSpeaksOnceOfEachField()
    {
        Sample sample;
        sample.board = aBoard({aFile(u"a"_s), aFile(u"b"_s)});
        sample.details = {{u"a"_s, aDetail(u"a"_s, 5)}, {u"b"_s, aDetail(u"b"_s, 5)}};
        Store store(m_clock.clock());
        QSignalSpy signedIn(&store, &Store::signedInChanged);
        QSignalSpy boards(&store, &Store::boardChanged);
        QSignalSpy details(&store, &Store::detailsChanged);
        QSignalSpy pages(&store, &Store::pageChanged);
        QSignalSpy selections(&store, &Store::selectionChanged);
        store.takeSample(sample);
        for (const QSignalSpy *spy : {&signedIn, &boards, &details, &pages, &selections})
            QCOMPARE(spy->size(), 1);
    }

private:
    TestClock m_clock;
};

QTEST_GUILESS_MAIN(TestArrivals)
#include "tst_arrivals.moc"
