#include "compare.h"

#include "comparison.h"

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
    QCOMPARE(referenceAspect(RefPage(), 0.6), 0.6);
    QCOMPARE(referenceAspect(RefPage{.px = QList<double>{300}}, 0.6), 0.6);
    QCOMPARE(referenceAspect(RefPage{.px = QList<double>{300, 0}}, 0.6), 0.6);
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
    QTest::addColumn<bool>("quiet");
    QTest::newRow("open") << u"words"_s << u"open"_s << int(Tone::Accent) << false;
    QTest::newRow("issue") << u"words"_s << u"issue"_s << int(Tone::Accent) << false;
    QTest::newRow("fine") << u"words"_s << u"fine"_s << int(Tone::Reviewed) << true;
    QTest::newRow("passed") << u"pass"_s << u"open"_s << int(Tone::Reviewed) << true;
    QTest::newRow("expected") << u"expected"_s << u"open"_s << int(Tone::Neutral) << true;
    QTest::newRow("expected and fine") << u"expected"_s << u"fine"_s << int(Tone::Reviewed) << true;
    QTest::newRow("unknown") << u"glitter"_s << u"pondering"_s << int(Tone::Accent) << false;
}

void CompareTest::theColourOfAMarkFollowsStateAndKind()
{
    QFETCH(QString, kind);
    QFETCH(QString, state);
    QFETCH(int, tone);
    QFETCH(bool, quiet);
    FileDetail detail;
    detail.findings = {findingOn(0, u"submitted"_s, kind)};
    detail.findings[0].state = state;
    QCOMPARE(int(boxMarks(detail, 0, u"submitted"_s, {})[0].tone), tone);
    QCOMPARE(isQuiet(detail.findings[0]), quiet);
}

QTEST_GUILESS_MAIN(CompareTest)
#include "tst_compare.moc"
