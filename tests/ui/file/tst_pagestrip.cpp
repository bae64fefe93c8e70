#include "boards.h"
#include "pagestrip.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Finding found(const QString &kind, const QString &severity, const QString &state, qint64 page = 0)
{
    Finding finding = aFinding(kind + severity + state, page, severity);
    finding.kind = kind;
    finding.state = state;
    return finding;
}

Note aNote(std::optional<qint64> page, std::optional<qint64> resolved = {})
{
    Note note;
    note.page = page;
    note.resolved = resolved;
    return note;
}

} // namespace

class PageStripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expectedAndPassedFindingsGiveNoMarker();
    void openFindingsOfLowSeverityGiveNoMarker();
    void issuesCountWhateverTheirSeverity();
    void findingsCountAgainstWhicheverOfOurFilesTheyWereFound();
    void onlyThePagesOwnFindingsAndNotesCount();
    void resolvedNotesDoNotCount();
    void aCellSaysWhatThePageIsCalled();
    void aPageWithoutAThumbnailShowsItsPicture();
    void aFileWithoutPagesHasNoCells();
};

void PageStripTest::expectedAndPassedFindingsGiveNoMarker()
{
    const FileDetail detail =
        aDetail(u"f"_s, 1,
                {found(u"expected"_s, u"high"_s, u"open"_s), found(u"pass"_s, u"high"_s, u"open"_s),
                 found(u"expected"_s, u"high"_s, u"issue"_s)});
    QCOMPARE(pageTally(detail, 0), PageTally());
}

void PageStripTest::openFindingsOfLowSeverityGiveNoMarker()
{
    const FileDetail detail =
        aDetail(u"f"_s, 1, {found(u"words"_s, u"low"_s, u"open"_s), found(u"words"_s, u"medium"_s, u"open"_s)});
    QCOMPARE(pageTally(detail, 0), (PageTally{.open = 1}));
}

void PageStripTest::issuesCountWhateverTheirSeverity()
{
    const FileDetail detail =
        aDetail(u"f"_s, 1, {found(u"words"_s, u"low"_s, u"issue"_s), found(u"size"_s, u"high"_s, u"fine"_s)});
    QCOMPARE(pageTally(detail, 0), (PageTally{.issues = 1}));
}

void PageStripTest::findingsCountAgainstWhicheverOfOurFilesTheyWereFound()
{
    FileDetail detail =
        aDetail(u"f"_s, 1, {found(u"words"_s, u"high"_s, u"open"_s), found(u"fonts"_s, u"high"_s, u"open"_s)});
    detail.findings[0].against = u"submitted"_s;
    detail.findings[1].against = u"latest"_s;
    QCOMPARE(pageTally(detail, 0).open, 2);
}

void PageStripTest::onlyThePagesOwnFindingsAndNotesCount()
{
    FileDetail detail = aDetail(u"f"_s, 2, {found(u"words"_s, u"high"_s, u"open"_s, 1)});
    detail.comments = {aNote(1), aNote({})};
    QCOMPARE(pageTally(detail, 0), PageTally());
    QCOMPARE(pageTally(detail, 1), (PageTally{.open = 1, .notes = 1}));
}

void PageStripTest::resolvedNotesDoNotCount()
{
    FileDetail detail = aDetail(u"f"_s, 1);
    detail.comments = {aNote(0, 1), aNote(0, 0), aNote(0)};
    QCOMPARE(pageTally(detail, 0).notes, 2);
}

void PageStripTest::aCellSaysWhatThePageIsCalled()
{
    FileDetail detail = aDetail(u"f"_s, 2, {found(u"words"_s, u"high"_s, u"issue"_s, 1)});
    detail.file.pages->last().label = u"iv"_s;
    detail.file.pages->last().px = QList<double>{200, 100};
    detail.comments = {aNote(1), aNote(1)};
    const QList<PageCell> cells = pageCells(detail);
    QCOMPARE(cells.size(), 2);
    QCOMPARE(cells[0].label, u"1"_s);
    QCOMPARE(cells[0].name, u"Page 1"_s);
    QCOMPARE(cells[1].label, u"iv"_s);
    QCOMPARE(cells[1].name, u"Page iv, 1 real issue, 2 notes"_s);
    QCOMPARE(cells[1].aspect, 2.0);
}

void PageStripTest::aPageWithoutAThumbnailShowsItsPicture()
{
    FileDetail detail = aDetail(u"f"_s, 1);
    detail.file.pages->first().img = u"large"_s;
    QCOMPARE(pageCells(detail).first().thumb, u"large"_s);
    detail.file.pages->first().thumb = u"small"_s;
    QCOMPARE(pageCells(detail).first().thumb, u"small"_s);
}

void PageStripTest::aFileWithoutPagesHasNoCells()
{
    FileDetail detail = aDetail(u"f"_s, 1);
    detail.file.pages.reset();
    QVERIFY(pageCells(detail).isEmpty());
}

QTEST_GUILESS_MAIN(PageStripTest)
#include "tst_pagestrip.moc"
