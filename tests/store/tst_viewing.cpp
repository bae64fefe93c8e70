#include "boards.h"
#include "store.h"
#include "testclock.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace vexal;

/// What the person looks at and is about to write.
class TestViewing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_store = std::make_unique<Store>(m_clock.clock());
        m_store->takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s), aFile(u"c"_s)}));
        for (const QString &id : {u"a"_s, u"b"_s, u"c"_s})
            m_store->takeDetail(id, aDetail(id, 9));
        QCOMPARE(m_store->selection(), QSet{u"a"_s});
    }

    void aClickSelectsOneFile()
    {
        m_store->selectFile(u"b"_s);
        QCOMPARE(m_store->selection(), QSet{u"b"_s});
        m_store->selectFile(u"c"_s, true);
        m_store->selectFile(u"a"_s);
        QCOMPARE(m_store->selection(), QSet{u"a"_s});
    }

    void anAdditiveClickAddsOrTakesAway()
    {
        m_store->selectFile(u"b"_s, true);
        QCOMPARE(m_store->selection(), (QSet{u"a"_s, u"b"_s}));
        m_store->selectFile(u"a"_s, true);
        QCOMPARE(m_store->selection(), QSet{u"b"_s});
    }

    void anAdditiveClickOnTheOnlySelectedFileEmptiesTheSelection()
    {
        m_store->selectFile(u"a"_s, true);
        QVERIFY(m_store->selection().isEmpty());
    }

    void anotherFileDropsFocusAndDraft_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("additive");
        QTest::newRow("another file") << u"b"_s << false;
        QTest::newRow("several files") << u"b"_s << true;
        QTest::newRow("no file") << u"a"_s << true;
    }

    void anotherFileDropsFocusAndDraft()
    {
        QFETCH(QString, id);
        QFETCH(bool, additive);
        beginNote();
        m_store->selectFile(id, additive);
        QVERIFY(!m_store->focus());
        QVERIFY(noteIsDropped());
    }

    void theSameFileDropsTheFocusOnly()
    {
        beginNote();
        QSignalSpy selections(m_store.get(), &Store::selectionChanged);
        m_store->selectFile(u"a"_s);
        QVERIFY(selections.isEmpty());
        QVERIFY(!m_store->focus());
        QVERIFY(noteIsKept());
    }

    void backToOneOfSeveralDropsTheDraft()
    {
        m_store->selectFile(u"b"_s, true);
        beginNote();
        m_store->selectFile(u"b"_s);
        QVERIFY(noteIsDropped());
    }

    void settingsOfTheComparisonOutliveTheFile()
    {
        m_store->setMode(CompareMode::Blink);
        m_store->setAgainst(u"latest"_s);
        m_store->turnPage(u"a"_s, 5);
        m_store->selectFile(u"b"_s);
        m_store->selectFile(u"a"_s);
        QCOMPARE(m_store->mode(), CompareMode::Blink);
        QCOMPARE(m_store->against(), u"latest"_s);
        QCOMPARE(m_store->shownPage(u"a"_s), 5);
        QCOMPARE(m_store->shownPage(u"b"_s), 0);
    }

    void aPageIsTurned()
    {
        QSignalSpy pages(m_store.get(), &Store::pageChanged);
        m_store->turnPage(u"a"_s, 3);
        QCOMPARE(m_store->page().value(u"a"_s), 3);
        QCOMPARE(m_store->shownPage(u"a"_s), 3);
        m_store->turnPage(u"a"_s, 3);
        QCOMPARE(pages.size(), 1);
    }

    void anotherPageDropsTheDraftAndKeepsTheFocus()
    {
        beginNote();
        m_store->turnPage(u"a"_s, 1);
        QVERIFY(noteIsDropped());
        QCOMPARE(m_store->focus(), u"f"_s);
    }

    void theSamePageKeepsTheDraft()
    {
        m_store->turnPage(u"a"_s, 8);
        beginNote();
        m_store->turnPage(u"a"_s, 8);
        m_store->turnPage(u"a"_s, 80);
        QVERIFY(noteIsKept());
        m_store->turnPage(u"a"_s, 7);
        QVERIFY(noteIsDropped());
    }

    void aPageOfAFileThatIsNotOnTheCanvasKeepsTheDraft()
    {
        beginNote();
        m_store->turnPage(u"b"_s, 4);
        QVERIFY(noteIsKept());
    }

    void aPageOutsideTheFileIsClampedWhereItIsRead_data()
    {
        QTest::addColumn<qint64>("asked");
        QTest::addColumn<qint64>("shown");
        constexpr auto least = std::numeric_limits<qint64>::min();
        constexpr auto most = std::numeric_limits<qint64>::max();
        QTest::newRow("far before") << qint64(least) << qint64(0);
        QTest::newRow("just before") << qint64(-1) << qint64(0);
        QTest::newRow("the first") << qint64(0) << qint64(0);
        QTest::newRow("the last") << qint64(8) << qint64(8);
        QTest::newRow("just behind") << qint64(9) << qint64(8);
        QTest::newRow("far behind") << qint64(most) << qint64(8);
    }

    void aPageOutsideTheFileIsClampedWhereItIsRead()
    {
        QFETCH(qint64, asked);
        m_store->turnPage(u"a"_s, asked);
        QTEST(m_store->shownPage(u"a"_s), "shown");
        QCOMPARE(m_store->page().value(u"a"_s), asked);
    }

    void aFileThatGrowsShowsThePageThatWasAskedFor()
    {
        m_store->turnPage(u"a"_s, 11);
        QCOMPARE(m_store->shownPage(u"a"_s), 8);
        m_store->takeDetail(u"a"_s, aDetail(u"a"_s, 12));
        QCOMPARE(m_store->shownPage(u"a"_s), 11);
    }

    void aFileWithoutPagesShowsItsFirst()
    {
        m_store->turnPage(u"a"_s, 3);
        m_store->takeDetail(u"a"_s, aDetail(u"a"_s, 0));
        QCOMPARE(m_store->shownPage(u"a"_s), 0);
        FileDetail withoutList = aDetail(u"a"_s, 0);
        withoutList.file.pages.reset();
        m_store->takeDetail(u"a"_s, withoutList);
        QCOMPARE(m_store->shownPage(u"a"_s), 0);
    }

    void whilePagesAreUnknownOnlyNegativeOnesAreClamped()
    {
        QCOMPARE(m_store->shownPage(u"x"_s), 0);
        m_store->turnPage(u"x"_s, -4);
        QCOMPARE(m_store->shownPage(u"x"_s), 0);
        m_store->turnPage(u"x"_s, 40);
        QCOMPARE(m_store->shownPage(u"x"_s), 40);
    }

    void aFindingIsFocusedUntilAnotherOrNone()
    {
        QSignalSpy focuses(m_store.get(), &Store::focusChanged);
        m_store->focusFinding(u"f"_s);
        m_store->focusFinding(u"f"_s);
        QCOMPARE(m_store->focus(), u"f"_s);
        m_store->focusFinding(u"g"_s);
        QCOMPARE(m_store->focus(), u"g"_s);
        m_store->clearFocus();
        m_store->clearFocus();
        QVERIFY(!m_store->focus());
        QCOMPARE(focuses.size(), 3);
    }

    void aPlacedPinEndsPinning()
    {
        m_store->setPinning(true);
        QVERIFY(m_store->pinning());
        m_store->placePin({0.62, 0.30});
        QVERIFY(!m_store->pinning());
        QCOMPARE(m_store->draftPin(), QPointF(0.62, 0.30));
    }

    void aPinInTheCornerIsAPin()
    {
        m_store->placePin({0, 0});
        QVERIFY(m_store->draftPin());
        QCOMPARE(m_store->property("hasDraftPin"), true);
    }

    void clearingTheDraftKeepsFileFocusAndPage()
    {
        m_store->turnPage(u"a"_s, 2);
        beginNote();
        m_store->clearDraft();
        QVERIFY(noteIsDropped());
        QCOMPARE(m_store->focus(), u"f"_s);
        QCOMPARE(m_store->shownPage(u"a"_s), 2);
        QCOMPARE(m_store->selection(), QSet{u"a"_s});
    }

    void theActivityListOpensAndCloses()
    {
        QSignalSpy changes(m_store.get(), &Store::showActivityChanged);
        m_store->setShowActivity(true);
        m_store->setShowActivity(true);
        QVERIFY(m_store->showActivity());
        m_store->setShowActivity(false);
        QVERIFY(!m_store->showActivity());
        QCOMPARE(changes.size(), 2);
        m_store->toggleActivity();
        QVERIFY(m_store->showActivity());
        m_store->toggleActivity();
        QVERIFY(!m_store->showActivity());
    }

    void aToastReplacesTheOneBefore()
    {
        QSignalSpy toasts(m_store.get(), &Store::toastChanged);
        m_store->showToast(u"Saved."_s);
        const Toast first = *m_store->toast();
        m_store->showToast(u"Saved."_s);
        QCOMPARE(m_store->toast()->text, u"Saved."_s);
        QVERIFY(!m_store->toast()->id.isNull());
        QVERIFY(m_store->toast()->id != first.id);
        QCOMPARE(toasts.size(), 2);
    }

    void onlyTheToastOfThatIdIsTakenAway()
    {
        m_store->showToast(u"One."_s);
        const QUuid first = m_store->toast()->id;
        m_store->showToast(u"Two."_s);
        QSignalSpy toasts(m_store.get(), &Store::toastChanged);
        m_store->clearToast(first);
        QCOMPARE(m_store->toast()->text, u"Two."_s);
        QVERIFY(toasts.isEmpty());
        m_store->clearToast(m_store->toast()->id);
        QVERIFY(!m_store->toast());
        QCOMPARE(toasts.size(), 1);
        m_store->clearToast(first);
        QCOMPARE(toasts.size(), 1);
    }

    void undoRunsOnceAndTakesTheToastAway()
    {
        int undone = 0;
        m_store->showToast(u"Marked fine."_s, u"Undo"_s, [&] { ++undone; });
        QCOMPARE(m_store->toast()->undoLabel, u"Undo"_s);
        m_store->undoToast();
        QVERIFY(!m_store->toast());
        m_store->undoToast();
        QCOMPARE(undone, 1);
    }

    void anUndoThatShowsAToastKeepsIt()
    {
        m_store->showToast(u"Marked fine."_s, u"Undo"_s, [&] { m_store->showToast(u"Reopened."_s); });
        m_store->undoToast();
        QVERIFY(m_store->toast());
        QCOMPARE(m_store->toast()->text, u"Reopened."_s);
    }

    void aToastWithoutUndoIsTakenAway()
    {
        m_store->showToast(u"Saved."_s);
        QVERIFY(!m_store->toast()->undoLabel);
        m_store->undoToast();
        QVERIFY(!m_store->toast());
    }

private:
    void beginNote()
    {
        m_store->focusFinding(u"f"_s);
        m_store->answerFinding(u"f"_s);
        m_store->placePin({0.5, 0.5});
        m_store->setPinning(true);
    }

    bool noteIsKept() const { return m_store->pinning() && m_store->draftPin() && m_store->draftFinding(); }
    bool noteIsDropped() const { return !m_store->pinning() && !m_store->draftPin() && !m_store->draftFinding(); }

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
};

QTEST_GUILESS_MAIN(TestViewing)
#include "tst_viewing.moc"
