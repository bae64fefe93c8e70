#include "canvasview.h"
#include "pagezoom.h"

#include <QTest>

using namespace vexal;

namespace {

// A page of 1000 by 2000 pixels, fitted into 400 by 600 points: 300 by 600, a pixel of the page is 0.3 of a point.
Opening opening(qreal foot = 0)
{
    return {{400, 600}, {300, 600}, actualFactor({300, 600}, {1000, 2000}, 1), foot};
}

QPointF fractionAt(const View &view, const Opening &through, QPointF at)
{
    const QRectF page = placeOf(view, through);
    return {(at.x() - page.x()) / page.width(), (at.y() - page.y()) / page.height()};
}

bool near(QPointF a, QPointF b)
{
    return std::abs(a.x() - b.x()) < 1e-9 && std::abs(a.y() - b.y()) < 1e-9;
}

} // namespace

class CanvasViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atRestThePageLiesInTheCorner();
    void aHundredPerCentIsAPixelAPixel();
    void zoomingKeepsWhatIsUnderThePointer();
    void nothingIsShownCloserThanEight();
    void zoomingOutEndsFitted();
    void aPageOfUnknownPixelsStaysFitted();
    void thePageMovesNoFurtherThanItsEdges();
    void aMarkIsBroughtIntoViewByTheShortestWay();
    void aFittedPageSlidesUpFromUnderTheFoot();
    void aMarkThatIsSeenMovesNothing();
    void theZoomHoldsForPagesOfOtherShapes();
    void thePlaceIsKeptInAnotherBox();
    void thePercentIsThatOfThePagesPixels();
};

void CanvasViewTest::atRestThePageLiesInTheCorner()
{
    QCOMPARE(placeOf({}, opening()), QRectF(0, 0, 300, 600));
}

void CanvasViewTest::aHundredPerCentIsAPixelAPixel()
{
    QCOMPARE(placeOf({1, {0.5, 0.5}}, opening()).size(), QSizeF(1000, 2000));
    QCOMPARE(actualFactor({300, 600}, {1000, 2000}, 2) * 300, 500.0);
}

void CanvasViewTest::zoomingKeepsWhatIsUnderThePointer()
{
    const QPointF at(200, 250);
    View view = zoomedTo(1, {}, opening(), at);
    const QPointF before = fractionAt(view, opening(), at);
    QVERIFY(near(fractionAt({}, opening(), at), before));
    for (int i = 0; i < 5; ++i)
        view = zoomedBy(1.2, view, opening(), at);
    QVERIFY(near(fractionAt(view, opening(), at), before));
}

void CanvasViewTest::nothingIsShownCloserThanEight()
{
    View view;
    for (int i = 0; i < 60; ++i)
        view = zoomedBy(1.2, view, opening(), {10, 10});
    QCOMPARE(view.zoom, 8.0);
    QCOMPARE(placeOf(view, opening()).size(), QSizeF(8000, 16000));
}

void CanvasViewTest::zoomingOutEndsFitted()
{
    View view = zoomedTo(2, {}, opening(), {100, 100});
    for (int i = 0; i < 60; ++i)
        view = zoomedBy(1 / 1.2, view, opening(), {350, 500});
    QCOMPARE(view, View());
}

void CanvasViewTest::aPageOfUnknownPixelsStaysFitted()
{
    const Opening unknown{{400, 600}, {300, 600}, actualFactor({300, 600}, {}, 1), 0};
    QCOMPARE(zoomedBy(3, {}, unknown, {10, 10}), View());
    QCOMPARE(placeOf({2, {0.1, 0.1}}, unknown), QRectF(0, 0, 300, 600));
}

void CanvasViewTest::thePageMovesNoFurtherThanItsEdges()
{
    const View view = zoomedTo(1, {}, opening(), {200, 300});
    QCOMPARE(placeOf(movedBy({5000, 5000}, view, opening()), opening()).topLeft(), QPointF(0, 0));
    const View corner = movedBy({-5000, -5000}, view, opening());
    QCOMPARE(placeOf(corner, opening()).bottomRight(), QPointF(400, 600));
    // What was pushed past an edge is not owed on the way back.
    QCOMPARE(placeOf(movedBy({10, 10}, corner, opening()), opening()).bottomRight(), QPointF(410, 610));
    // With something over its foot, a page can be moved up from under it.
    QCOMPARE(placeOf(movedBy({0, -5000}, view, opening(200)), opening(200)).bottom(), 400.0);
}

void CanvasViewTest::aMarkIsBroughtIntoViewByTheShortestWay()
{
    const View view = movedBy({5000, 5000}, zoomedTo(1, {}, opening(), {0, 0}), opening());
    const QRectF page = placeOf(revealing({0.5, 0.5, 0.1, 0.1}, view, opening()), opening());
    // Its mark reaches 3 points further and keeps 24 from the edge.
    QCOMPARE(page.x() + 0.6 * page.width() + 27, 400.0);
    QCOMPARE(page.y() + 0.6 * page.height() + 27, 600.0);
}

void CanvasViewTest::aFittedPageSlidesUpFromUnderTheFoot()
{
    const View view = revealing({0.1, 0.9, 0.1, 0.05}, {}, opening(200));
    const QRectF page = placeOf(view, opening(200));
    QCOMPARE(page.size(), QSizeF(300, 600));
    QCOMPARE(page.x(), 0.0);
    QCOMPARE(page.y() + 0.95 * 600 + 27, 400.0);
    // At the very end of the page there is no more to slide.
    QCOMPARE(placeOf(revealing({0.1, 0.97, 0.1, 0.03}, {}, opening(200)), opening(200)).bottom(), 400.0);
}

void CanvasViewTest::aMarkThatIsSeenMovesNothing()
{
    const View view = zoomedTo(1, {}, opening(), {100, 100});
    const QRectF page = placeOf(view, opening());
    const QRectF seen((200 - page.x()) / 1000, (300 - page.y()) / 2000, 0.01, 0.01);
    QCOMPARE(placeOf(revealing(seen, view, opening()), opening()), page);
    QCOMPARE(placeOf(revealing({0.1, 0.1, 0.1, 0.1}, {}, opening(200)), opening(200)), QRectF(0, 0, 300, 600));
}

void CanvasViewTest::theZoomHoldsForPagesOfOtherShapes()
{
    const View view{1, {0.5, 0.5}};
    Opening wide = opening();
    wide.page = {400, 200};
    const QRectF page = placeOf(view, wide);
    QCOMPARE(page.width() / 400, placeOf(view, opening()).width() / 300);
    QCOMPARE(page.center(), QPointF(200, 300));
}

void CanvasViewTest::thePlaceIsKeptInAnotherBox()
{
    const View view{2, {0.3, 0.6}};
    const Opening single{{860, 600}, {300, 600}, opening().actual, 0};
    QVERIFY(near(fractionAt(view, opening(), {200, 300}), {0.3, 0.6}));
    QVERIFY(near(fractionAt(view, single, {430, 300}), {0.3, 0.6}));
    QCOMPARE(placeOf(view, single).size(), placeOf(view, opening()).size());
}

void CanvasViewTest::thePercentIsThatOfThePagesPixels()
{
    PageZoom zoom;
    zoom.setBox({400, 600});
    zoom.setPage({300, 600});
    QCOMPARE(zoom.percent(), 100);
    zoom.setPixels({1000, 2000});
    QCOMPARE(zoom.percent(), 30);
    QVERIFY(!zoom.zoomed());
    zoom.actual({200, 300}, {300, 600});
    QCOMPARE(zoom.percent(), 100);
    QVERIFY(zoom.zoomed());
    zoom.setRatio(2);
    QCOMPARE(zoom.place({300, 600}).width(), 500.0);
    zoom.fit();
    QCOMPARE(zoom.place({300, 600}), QRectF(0, 0, 300, 600));
}

QTEST_GUILESS_MAIN(CanvasViewTest)
#include "tst_canvasview.moc"
