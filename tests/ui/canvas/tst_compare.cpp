#include "compare.h"

#include "comparison.h"
#include "derived.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Page pageWith(const QStringList &roles)
{
    Page page;
    QMap<QString, RefPage> refs;
    for (const QString &role : roles)
        refs.insert(role, RefPage{.img = role + u"/img"_s});
    page.refs = refs;
    return page;
}

FileItem fileWith(const QList<Page> &pages)
{
    FileItem file;
    file.id = u"f"_s;
    file.supplier = u"Ostrel Print"_s;
    file.pages = pages;
    return file;
}

Finding findingOn(qint64 page, const QString &against, const QString &kind = u"words"_s)
{
    Finding finding;
    finding.id = against + kind;
    finding.page = page;
    finding.against = against;
    finding.kind = kind;
    finding.state = u"open"_s;
    finding.box = Box{0.1, 0.2, 0.3, 0.1};
    return finding;
}

} // namespace

class CompareTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachOfTwoPanesAt1000By700Is473By650();
    void aSinglePaneTakesTheWholeWidth();
    void aWidePageFillsTheWidth();
    void aTallPageFillsTheHeight();
    void aNeedleOfAPageIsKeptAtAFifth();
    void noSideOfAPageIsUnderOnePoint();
    void aBoxIsDrawnThreePointsOutside();
    void anEmptyBoxIsASquareOfEight();
    void aListOfThreeOrFiveNumbersIsNoBox();
    void rolesAreOfferedInTheirFixedOrder();
    void aRoleOutsideTheTwoIsNotOffered();
    void theWantedRoleIsChosenWhenItIsOffered();
    void theFirstOfferedStandsInForOneThatIsNot();
    void theWantedRoleStaysWhenNoneIsOffered();
    void aPageWithoutOursSaysSo_data();
    void aPageWithoutOursSaysSo();
    void aSupplierWithoutANameIsCalledSupplier();
    void theCounterCountsFromOne();
    void ourPageKeepsItsOwnShape();
    void ourPageOfUnknownShapeTakesTheSuppliers();
    void aFileWithoutPagesComparesNothing();
    void onlyTheRolesFindingsAreDrawnAndHiddenOnesAlways();
    void aFindingOfAnotherPageIsNotDrawn();
    void aFindingWithoutABoxHasNoMark();
    void furtherBoxesBelongToTheSameMark();
    void theColourOfAMarkFollowsStateAndKind_data();
    void theColourOfAMarkFollowsStateAndKind();
    void aCropShowsAboutTwiceTheBox();
    void aCropIsNeverNarrowerThanAThird();
    void aCropIsNeverWiderThanItsHeightAllows();
    void theLowestCropComesFromTheWidthBeforeItsCap();
    void aCropAtTheEdgeEndsThere();
    void aListThatIsNoBoxIsCroppedToTheWholePage();
    void aBoxOnACropLiesWhereTheRegionPutsIt();
    void inARegionHigherThanItsFrameTheBoxIsSeen();
    void belowARegionLowerThanItsFrameThePageGoesOn();
    void theLoupeIsBetween120And210High();
    void theOverlaysLabelNamesBoth();
    void pinsCountThePagesPinnedNotes();
    void theCloseupIsThatOfTheFocusedFinding();
    void aHiddenFindingIsEnlargedOnTheFileItWasFoundAgainst();
    void thereIsNoCloseupOfWhatIsNotDrawn();
    void theNeighboursAndTheOtherRoleComeNext();
    void aSmallMarkLiesAboveALargeOne();
};

void CompareTest::eachOfTwoPanesAt1000By700Is473By650()
{
    QCOMPARE(sideBySideBox({1000, 700}), QSizeF(473, 650));
}

void CompareTest::aSinglePaneTakesTheWholeWidth()
{
    QCOMPARE(singleBox({1000, 700}), QSizeF(964, 650));
}

void CompareTest::aWidePageFillsTheWidth()
{
    QCOMPARE(fittedPage({400, 300}, 2), QSizeF(400, 200));
}

void CompareTest::aTallPageFillsTheHeight()
{
    QCOMPARE(fittedPage({400, 300}, 0.5), QSizeF(150, 300));
}

void CompareTest::aNeedleOfAPageIsKeptAtAFifth()
{
    QCOMPARE(fittedPage({400, 300}, 0.01), QSizeF(60, 300));
}

void CompareTest::noSideOfAPageIsUnderOnePoint()
{
    QCOMPARE(fittedPage({-5, 300}, 1), QSizeF(1, 1));
    QCOMPARE(fittedPage({400, 300}, 4000), QSizeF(400, 1));
}

void CompareTest::aBoxIsDrawnThreePointsOutside()
{
    QCOMPARE(boxOnPane({0.1, 0.2, 0.3, 0.4}, {100, 200}), QRectF(7, 37, 36, 86));
}

void CompareTest::anEmptyBoxIsASquareOfEight()
{
    QCOMPARE(boxOnPane({0.5, 0.5, 0, 0}, {100, 200}), QRectF(47, 97, 8, 8));
}

void CompareTest::aListOfThreeOrFiveNumbersIsNoBox()
{
    QVERIFY(boxOnPane({0.1, 0.2, 0.3}, {100, 200}).isNull());
    QVERIFY(boxOnPane({0.1, 0.2, 0.3, 0.4, 0.5}, {100, 200}).isNull());
}

void CompareTest::rolesAreOfferedInTheirFixedOrder()
{
    QCOMPARE(rolesOffered(pageWith({u"latest"_s, u"submitted"_s})), QStringList({u"submitted"_s, u"latest"_s}));
}

void CompareTest::aRoleOutsideTheTwoIsNotOffered()
{
    QVERIFY(rolesOffered(pageWith({u"draft"_s})).isEmpty());
    QVERIFY(rolesOffered(Page()).isEmpty());
}

void CompareTest::theWantedRoleIsChosenWhenItIsOffered()
{
    QCOMPARE(roleChosen({u"submitted"_s, u"latest"_s}, u"latest"_s), u"latest"_s);
}

void CompareTest::theFirstOfferedStandsInForOneThatIsNot()
{
    QCOMPARE(roleChosen({u"submitted"_s}, u"latest"_s), u"submitted"_s);
}

void CompareTest::theWantedRoleStaysWhenNoneIsOffered()
{
    QCOMPARE(roleChosen({}, u"latest"_s), u"latest"_s);
}

void CompareTest::aPageWithoutOursSaysSo_data()
{
    QTest::addColumn<QString>("against");
    QTest::addColumn<QString>("heading");
    QTest::newRow("what we sent") << u"submitted"_s << u"No file of ours for this page"_s;
    QTest::newRow("last print") << u"latest"_s << u"No last print for this page"_s;
}

void CompareTest::aPageWithoutOursSaysSo()
{
    QFETCH(QString, against);
    QFETCH(QString, heading);
    const Comparison comparison = comparisonOf(fileWith({Page()}), 0, against);
    QVERIFY(!comparison.matched);
    QVERIFY(comparison.roles.isEmpty());
    QCOMPARE(comparison.role, against);
    QCOMPARE(comparison.missing, heading);
}

void CompareTest::aSupplierWithoutANameIsCalledSupplier()
{
    FileItem file = fileWith({Page()});
    QCOMPARE(comparisonOf(file, 0, u"submitted"_s).supplier.label, u"Ostrel Print file · p1"_s);
    file.supplier.reset();
    QCOMPARE(comparisonOf(file, 0, u"submitted"_s).supplier.label, u"Supplier file · p1"_s);
}

void CompareTest::theCounterCountsFromOne()
{
    Page seventh;
    seventh.i = 1;
    seventh.label = u"vii"_s;
    const Comparison comparison = comparisonOf(fileWith({Page(), seventh, Page()}), 1, u"submitted"_s);
    QCOMPARE(comparison.pageText, u"pvii"_s);
    QCOMPARE(comparison.counterText, u"2 of 3"_s);
}

void CompareTest::ourPageKeepsItsOwnShape()
{
    Page page = pageWith({u"submitted"_s});
    page.px = QList<double>{100, 200};
    (*page.refs)[u"submitted"_s].px = QList<double>{300, 200};
    const Comparison comparison = comparisonOf(fileWith({page}), 0, u"submitted"_s);
    QCOMPARE(comparison.supplier.aspect, 0.5);
    QCOMPARE(comparison.ours.aspect, 1.5);
    QCOMPARE(comparison.ours.key, u"submitted/img"_s);
    QCOMPARE(comparison.ours.label, u"What we sent"_s);
}

void CompareTest::ourPageOfUnknownShapeTakesTheSuppliers()
{
    QCOMPARE(aspect(RefPage(), 0.6), 0.6);
    QCOMPARE(aspect(RefPage{.px = QList<double>{300}}, 0.6), 0.6);
    QCOMPARE(aspect(RefPage{.px = QList<double>{300, 0}}, 0.6), 0.6);
}

void CompareTest::aFileWithoutPagesComparesNothing()
{
    const Comparison comparison = comparisonOf(fileWith({}), 0, u"submitted"_s);
    QCOMPARE(comparison.count, 0);
    QVERIFY(comparison.supplier.key.isEmpty());
}

void CompareTest::onlyTheRolesFindingsAreDrawnAndHiddenOnesAlways()
{
    FileDetail detail;
    detail.findings = {findingOn(0, u"submitted"_s), findingOn(0, u"latest"_s), findingOn(0, u"latest"_s, u"hidden"_s)};
    const QList<BoxMark> marks = boxMarks(detail, 0, u"submitted"_s, u"submittedwords"_s);
    QCOMPARE(marks.size(), 2);
    QCOMPARE(marks[0].key, u"submittedwords"_s);
    QVERIFY(marks[0].selected);
    QCOMPARE(marks[1].key, u"latesthidden"_s);
    QVERIFY(!marks[1].selected);
}

void CompareTest::aFindingOfAnotherPageIsNotDrawn()
{
    FileDetail detail;
    detail.findings = {findingOn(1, u"submitted"_s), findingOn(2, u"latest"_s, u"hidden"_s)};
    QVERIFY(boxMarks(detail, 0, u"submitted"_s, {}).isEmpty());
}

void CompareTest::aFindingWithoutABoxHasNoMark()
{
    FileDetail detail;
    detail.findings = {findingOn(0, u"submitted"_s), findingOn(0, u"submitted"_s, u"fonts"_s)};
    detail.findings[0].box.reset();
    detail.findings[1].box = Box{0.1, 0.2, 0.3};
    QVERIFY(boxMarks(detail, 0, u"submitted"_s, {}).isEmpty());
}

void CompareTest::furtherBoxesBelongToTheSameMark()
{
    FileDetail detail;
    detail.findings = {findingOn(0, u"submitted"_s)};
    detail.findings[0].boxes = QList<Box>{{0.5, 0.5, 0.1, 0.1}, {0.6}};
    const QList<BoxMark> marks = boxMarks(detail, 0, u"submitted"_s, {});
    QCOMPARE(marks.size(), 1);
    QCOMPARE(marks[0].boxes, QList<QRectF>({{0.1, 0.2, 0.3, 0.1}, {0.5, 0.5, 0.1, 0.1}}));
}

void CompareTest::theColourOfAMarkFollowsStateAndKind_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("tone");
    QTest::newRow("open") << u"words"_s << u"open"_s << int(Tone::Accent);
    QTest::newRow("issue") << u"words"_s << u"issue"_s << int(Tone::Accent);
    QTest::newRow("fine") << u"words"_s << u"fine"_s << int(Tone::Reviewed);
    QTest::newRow("passed") << u"pass"_s << u"open"_s << int(Tone::Reviewed);
    QTest::newRow("expected") << u"expected"_s << u"open"_s << int(Tone::Neutral);
    QTest::newRow("expected and fine") << u"expected"_s << u"fine"_s << int(Tone::Reviewed);
    QTest::newRow("unknown") << u"glitter"_s << u"pondering"_s << int(Tone::Accent);
}

void CompareTest::theColourOfAMarkFollowsStateAndKind()
{
    QFETCH(QString, kind);
    QFETCH(QString, state);
    QFETCH(int, tone);
    FileDetail detail;
    detail.findings = {findingOn(0, u"submitted"_s, kind)};
    detail.findings[0].state = state;
    QCOMPARE(int(boxMarks(detail, 0, u"submitted"_s, {})[0].tone), tone);
}

void CompareTest::aCropShowsAboutTwiceTheBox()
{
    const QRectF region = cropRegion({0.3, 0.4, 0.3, 0.25}, 0.8);
    QCOMPARE(region.width(), 0.3 * 1.9);
    QCOMPARE(region.height(), 0.25 * 2.4);
    QCOMPARE(region.center(), QPointF(0.45, 0.525));
}

void CompareTest::aCropIsNeverNarrowerThanAThird()
{
    QCOMPARE(cropRegion({0.5, 0.5, 0, 0}, 0.8), QRectF(0.33, 0.5 - 0.8 * 0.34 / 5.2, 0.34, 0.8 * 0.34 / 2.6));
}

void CompareTest::aCropIsNeverWiderThanItsHeightAllows()
{
    const QRectF region = cropRegion({0.2, 0.5, 0.4, 0.001}, 0.8);
    // On the screen: its width to its height, which is a fraction of the page's height.
    QCOMPARE(region.width() / (region.height() / 0.8), 2.6);
}

void CompareTest::theLowestCropComesFromTheWidthBeforeItsCap()
{
    const QRectF region = cropRegion({0.1, 0.5, 0.8, 0.01}, 1);
    QCOMPARE(region.width(), 1.0);
    QCOMPARE(region.height(), 0.8 * 1.9 / 2.6);
}

void CompareTest::aCropAtTheEdgeEndsThere()
{
    const QRectF right = cropRegion({0.95, 0.97, 0.05, 0.03}, 0.8);
    QCOMPARE(right.left(), 1 - right.width());
    QCOMPARE(right.top(), 1 - right.height());
    QCOMPARE(cropRegion({0, 0, 0.05, 0.03}, 0.8).topLeft(), QPointF(0, 0));
}

void CompareTest::aListThatIsNoBoxIsCroppedToTheWholePage()
{
    QCOMPARE(cropRegion({0.1, 0.2, 0.3}, 0.8), QRectF(0, 0, 1, 1));
    QCOMPARE(cropRegion({0.1, 0.2, 0.3, 0.4, 0.5}, 0.8), QRectF(0, 0, 1, 1));
}

void CompareTest::aBoxOnACropLiesWhereTheRegionPutsIt()
{
    const qreal aspect = 0.8;
    const QRectF box(0.3, 0.4, 0.1, 0.02);
    const QRectF region = cropRegion({box.x(), box.y(), box.width(), box.height()}, aspect);
    const QSizeF frame(390, 150);
    const qreal s = frame.width() / region.width();
    const QRectF drawn = boxOnCrop(box, pageBehindCrop({box.x(), box.y(), box.width(), box.height()}, aspect, frame));
    QCOMPARE(drawn.left(), s * (box.x() - region.left()) - 3);
    QCOMPARE(drawn.top(), s * (box.y() - region.top()) / aspect - 3);
    QCOMPARE(drawn.size(), QSizeF(s * box.width() + 6, s * box.height() / aspect + 6));
}

void CompareTest::inARegionHigherThanItsFrameTheBoxIsSeen()
{
    const QSizeF frame(390, 150);
    const auto drawn = [&](const QRectF &box) {
        return boxOnCrop(box, pageBehindCrop({box.x(), box.y(), box.width(), box.height()}, 0.8, frame));
    };
    QCOMPARE(drawn({0.4, 0.3, 0.1, 0.05}).center(), QPointF(195, 75));
    // At the head and the foot of the page the region is pushed aside, the box is not.
    QCOMPARE(drawn({0.4, 0, 0.1, 0.05}).top(), -3.0);
    QCOMPARE(drawn({0.4, 0.95, 0.1, 0.05}).bottom(), 153.0);
    // Of a box that is higher than the frame, the beginning.
    QCOMPARE(drawn({0.4, 0.3, 0.1, 0.5}).top(), 3.0);
    QCOMPARE(drawn({0.4, 0, 0.1, 0.5}).top(), -3.0);
}

void CompareTest::belowARegionLowerThanItsFrameThePageGoesOn()
{
    const QSizeF frame(180, 100);
    const QRectF middle = pageBehindCrop({0.4, 0.5, 0.1, 0.01}, 0.8, frame);
    QCOMPARE(middle.top(), -cropRegion({0.4, 0.5, 0.1, 0.01}, 0.8).top() * middle.height());
    const QRectF foot = pageBehindCrop({0.4, 0.98, 0.1, 0.01}, 0.8, frame);
    QCOMPARE(foot.bottom(), frame.height());
}

void CompareTest::theLoupeIsBetween120And210High()
{
    QCOMPARE(loupeHeight(100), 120.0);
    QCOMPARE(loupeHeight(801), (801 - 12) / 5.2 + 20);
    QCOMPARE(loupeHeight(3000), 210.0);
}

void CompareTest::theOverlaysLabelNamesBoth()
{
    const FileItem file = fileWith({Page()});
    QCOMPARE(comparisonOf(file, 0, u"submitted"_s).overlayLabel, u"Ostrel Print file over what we sent"_s);
    QCOMPARE(comparisonOf(file, 0, u"latest"_s).overlayLabel, u"Ostrel Print file over the last print"_s);
}

void CompareTest::pinsCountThePagesPinnedNotes()
{
    const auto note = [](const QString &id, qint64 page, std::optional<double> at, qint64 resolved) {
        Note one;
        one.id = id;
        one.page = page;
        one.x = at;
        one.y = at;
        one.resolved = resolved;
        return one;
    };
    const QList<PinMark> pins = pinMarks({note(u"no place"_s, 0, {}, 0), note(u"resolved"_s, 0, 0.1, 17),
                                          note(u"open"_s, 0, 0.5, 0), note(u"other page"_s, 1, 0.5, 0)},
                                         0);
    QCOMPARE(pins.size(), 1);
    QCOMPARE(pins[0].key, u"open"_s);
    QCOMPARE(pins[0].number, 2);
    QCOMPARE(pins[0].place, QPointF(0.5, 0.5));
}

void CompareTest::theCloseupIsThatOfTheFocusedFinding()
{
    FileDetail detail;
    detail.file = fileWith({pageWith({u"submitted"_s})});
    detail.findings = {findingOn(0, u"submitted"_s)};
    detail.findings[0].ref_box = Box{0.2, 0.2, 0.3, 0.1};
    const Closeup closeup = closeupOf(detail, 0, u"submitted"_s, u"submittedwords"_s);
    QVERIFY(closeup.open());
    QCOMPARE(closeup.supplier.label, u"Ostrel Print"_s);
    QCOMPARE(closeup.ours.label, u"What we sent"_s);
    QCOMPARE(closeup.ours.key, u"submitted/img"_s);
    QCOMPARE(closeup.refBox, Box({0.2, 0.2, 0.3, 0.1}));
    QCOMPARE(closeup.refBoxes.size(), 1);
    // Where the finding does not say where it is on ours, the same place is shown, unmarked.
    detail.findings[0].ref_box.reset();
    QCOMPARE(closeupOf(detail, 0, u"submitted"_s, u"submittedwords"_s).refBox, *detail.findings[0].box);
    QVERIFY(closeupOf(detail, 0, u"submitted"_s, u"submittedwords"_s).refBoxes.isEmpty());
}

void CompareTest::aHiddenFindingIsEnlargedOnTheFileItWasFoundAgainst()
{
    FileDetail detail;
    detail.file = fileWith({pageWith({u"submitted"_s, u"latest"_s})});
    detail.findings = {findingOn(0, u"latest"_s, u"hidden"_s)};
    QCOMPARE(closeupOf(detail, 0, u"submitted"_s, u"latesthidden"_s).ours.key, u"latest/img"_s);
    detail.file = fileWith({Page()});
    const Closeup alone = closeupOf(detail, 0, u"submitted"_s, u"latesthidden"_s);
    QVERIFY(alone.open());
    QCOMPARE(alone.missing, u"No file of ours for this page"_s);
}

void CompareTest::thereIsNoCloseupOfWhatIsNotDrawn()
{
    FileDetail detail;
    detail.file = fileWith({pageWith({u"submitted"_s}), Page()});
    detail.findings = {findingOn(0, u"submitted"_s), findingOn(1, u"submitted"_s, u"fonts"_s),
                       findingOn(0, u"latest"_s), findingOn(0, u"submitted"_s, u"art"_s)};
    detail.findings[3].box.reset();
    QVERIFY(!closeupOf(detail, 0, u"submitted"_s, {}).open());
    QVERIFY(!closeupOf(detail, 0, u"submitted"_s, u"submittedfonts"_s).open());
    QVERIFY(!closeupOf(detail, 0, u"submitted"_s, u"latestwords"_s).open());
    QVERIFY(!closeupOf(detail, 0, u"submitted"_s, u"submittedart"_s).open());
    QVERIFY(closeupOf(detail, 0, u"submitted"_s, u"submittedwords"_s).open());
}

void CompareTest::theNeighboursAndTheOtherRoleComeNext()
{
    QList<Page> pages;
    for (int i = 0; i < 4; ++i) {
        pages.append(pageWith({u"submitted"_s, u"latest"_s}));
        pages[i].img = u"supplier/"_s + QString::number(i);
    }
    pages[2].img.reset();
    QStringList keys;
    for (const PageAhead &page : pagesAhead(fileWith(pages), 1, u"submitted"_s))
        keys.append(page.key);
    QCOMPARE(keys,
             QStringList({u"1/latest"_s, u"2/submitted"_s, u"2/latest"_s, u"0/"_s, u"0/submitted"_s, u"0/latest"_s}));
    QVERIFY(pagesAhead(fileWith({}), 0, u"submitted"_s).isEmpty());
}

void CompareTest::aSmallMarkLiesAboveALargeOne()
{
    BoxMark large;
    large.boxes = {{0, 0, 0.5, 0.5}};
    BoxMark small;
    small.boxes = {{0.1, 0.1, 0.1, 0.1}};
    QVERIFY(small.layer() > large.layer());
}

QTEST_GUILESS_MAIN(CompareTest)
#include "tst_compare.moc"
