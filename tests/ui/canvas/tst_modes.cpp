#include "canvasscreen.h"
#include "pagezoom.h"

#include <QTest>

using namespace vexal;
using namespace vexal::test;

namespace {

constexpr QSize size(1000, 744);
// The middle of the one pane's page of 325 by 650.
constexpr QPoint middle(18 + 160, 44 + 14 + 22 + 300);

const QHash<QString, QColor> pictures{{u"supplier/0"_s, QColor(200, 0, 0)},
                                      {u"ours/0"_s, QColor(0, 0, 200)},
                                      {u"last/0"_s, QColor(200, 0, 0)},
                                      {u"supplier/1"_s, QColor(0, 200, 0)},
                                      {u"ours/1"_s, QColor(0, 100, 0)}};

} // namespace

/// How the two pages are compared: overlaid, subtracted, alternating; and how closely.
class ModesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theSinglePaneTakesTheWholeWidth_data();
    void theSinglePaneTakesTheWholeWidth();
    void theBarOffersTheThreeWays();
    void theOverlayMixesBothPages();
    void theSliderDecidesHowMuchOfOursShows();
    void theDifferenceIsBlackWhereBothAreTheSame();
    void theDifferenceTakesTheDistance();
    void blinkStartsOnTheSuppliersPage();
    void blinkAlternatesAndStopsWithTheMode();
    void blinkRestsWhilePinningAndUnseen();
    void withoutOursEveryModeSaysSo();
    void anotherFileStartsAfresh();
    void theLabelsSayWhatIsSeen();
    void aLongLabelLeavesItsEndAndTheZoomPill();
    void aTurnedPageIsThereInTheVeryFrame();
    void onANarrowCanvasTheBarTakesMoreRows_data();
    void onANarrowCanvasTheBarTakesMoreRows();
    void theWheelZoomsAtThePointer();
    void theWheelMovesAZoomedPage();
    void theMiddleButtonMovesThePage();
    void spaceAndTheLeftButtonMoveThePage();
    void twoFingersZoom();
    void theKeysZoom();
    void aDoubleClickTogglesButNotOnAMark();
    void thePlaceIsKeptWhenModeRoleAndPageChange();
    void aZoomedPageIsReadAtFullResolution();

private:
    QQuickItem *root() const { return m_canvas->screen->window().rootObject(); }
    Screen &screen() const { return *m_canvas->screen; }
    Store &store() const { return m_canvas->store; }
    QObject *zoom() const { return root()->findChild<PageZoom *>(); }
    QObject *blending() const { return root()->property("blending").value<QObject *>(); }
    QColor seen() const { return screen().window().grabWindow().pixelColor(middle); }
    bool ready() const
    {
        const auto frames = screen().all("PageFrame");
        return !frames.isEmpty() && std::all_of(frames.cbegin(), frames.cend(), [](const QQuickItem *frame) {
            return frame->property("ready").toBool();
        });
    }
    static bool holds(const QQuickItem *item, const QString &key)
    {
        const auto *image = qobject_cast<const RemoteImage *>(item);
        const auto children = item->childItems();
        return (image && image->key() == key && image->hasPicture()) ||
               std::any_of(children.cbegin(), children.cend(),
                           [&](const QQuickItem *child) { return holds(child, key); });
    }
    void wheel(QPoint at, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QQuickView &window = screen().window();
        QWheelEvent event(at, window.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    }
    QRectF page() const
    {
        const QQuickItem *marks = screen().all("BoxMarks").first();
        return marks->mapRectToScene(marks->boundingRect());
    }

    std::unique_ptr<CanvasScreen> m_canvas;
};

void ModesTest::init()
{
    m_canvas.reset();
    m_canvas = std::make_unique<CanvasScreen>(detailOf({marked(u"a"_s, {0.1, 0.2, 0.3, 0.1})}), size, pictures);
}

void ModesTest::theSinglePaneTakesTheWholeWidth_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QSizeF>("box");
    QTest::newRow("1000 by 700") << QSize(1000, 700) << QSizeF(964, 650);
    QTest::newRow("wide and low") << QSize(1600, 300) << QSizeF(1564, 250);
    QTest::newRow("the smallest window") << QSize(891, 560) << QSizeF(855, 510);
    QTest::newRow("the usual window") << QSize(1211, 780) << QSizeF(1175, 730);
    QTest::newRow("large") << QSize(2400, 1300) << QSizeF(2364, 1250);
}

void ModesTest::theSinglePaneTakesTheWholeWidth()
{
    QFETCH(QSize, canvas);
    QFETCH(QSizeF, box);
    for (const CompareMode mode : {CompareMode::Overlay, CompareMode::Blink}) {
        store().setMode(mode);
        screen().window().resize(canvas + QSize(0, 44));
        QTRY_COMPARE(screen().only("Pane")->width(), box.width());
        // The bar may take two rows, which makes the canvas lower.
        const qreal bar = screen().only("CanvasBar")->height();
        screen().window().resize(canvas + QSize(0, int(bar)));
        QTRY_COMPARE(screen().only("Pane")->size(), box + QSizeF(0, 22));
        QCOMPARE(screen().only("Pane")->mapToScene({}), QPointF(18, bar + 14));
        QCOMPARE(screen().only("PageFrame")->size(), QSizeF(box.height() / 2, box.height()));
    }
}

void ModesTest::theBarOffersTheThreeWays()
{
    QQuickItem *picker = screen().all("SegmentedControl")[1];
    QCOMPARE(picker->property("titles").toStringList(), QStringList({u"Side by side"_s, u"Overlay"_s, u"Blink"_s}));
    QVERIFY(screen().all("Slider").isEmpty());
    QVERIFY(QMetaObject::invokeMethod(picker, "chosen", Q_ARG(int, 1)));
    QCOMPARE(store().mode(), CompareMode::Overlay);
    QCOMPARE(screen().only("Slider")->width(), 110.0);
    QCOMPARE(screen().only("Slider")->property("help").toString(), u"How much of ours shows through"_s);
    QCOMPARE(screen().only("CheckBox")->property("title").toString(), u"Difference"_s);
}

void ModesTest::theOverlayMixesBothPages()
{
    store().setMode(CompareMode::Overlay);
    QTRY_VERIFY(ready());
    const QColor mixed = seen();
    QVERIFY2(std::abs(mixed.red() - 100) <= 1 && std::abs(mixed.blue() - 100) <= 1, qPrintable(mixed.name()));
}

void ModesTest::theSliderDecidesHowMuchOfOursShows()
{
    store().setMode(CompareMode::Overlay);
    QTRY_VERIFY(ready());
    QVERIFY(QMetaObject::invokeMethod(screen().only("Slider"), "moved", Q_ARG(double, 1.0)));
    QTRY_COMPARE(seen(), QColor(0, 0, 200));
    QVERIFY(QMetaObject::invokeMethod(screen().only("Slider"), "moved", Q_ARG(double, 0.0)));
    QTRY_COMPARE(seen(), QColor(200, 0, 0));
}

void ModesTest::theDifferenceIsBlackWhereBothAreTheSame()
{
    store().setAgainst(u"latest"_s);
    store().setMode(CompareMode::Overlay);
    screen().click(screen().only("CheckBox"));
    QTRY_COMPARE(seen(), QColor(0, 0, 0));
}

void ModesTest::theDifferenceTakesTheDistance()
{
    store().setMode(CompareMode::Overlay);
    screen().click(screen().only("CheckBox"));
    QTRY_COMPARE(seen(), QColor(200, 0, 200));
    // The slider does nothing now, and shows it.
    QCOMPARE(screen().only("Slider")->opacity(), 0.45);
}

void ModesTest::blinkStartsOnTheSuppliersPage()
{
    QTRY_VERIFY(ready());
    store().setMode(CompareMode::Blink);
    QCOMPARE(seen(), QColor(200, 0, 0));
}

void ModesTest::blinkAlternatesAndStopsWithTheMode()
{
    store().setMode(CompareMode::Blink);
    QTRY_COMPARE(seen(), QColor(0, 0, 200));
    QTRY_COMPARE(seen(), QColor(200, 0, 0));
    QTRY_COMPARE(seen(), QColor(0, 0, 200));
    store().setMode(CompareMode::Side);
    QCOMPARE(blending()->property("ours").toBool(), false);
    QVERIFY(!root()->property("blinking").toBool());
    store().setMode(CompareMode::Blink);
    QCOMPARE(blending()->property("ours").toBool(), false);
}

void ModesTest::blinkRestsWhilePinningAndUnseen()
{
    store().setMode(CompareMode::Blink);
    QTRY_VERIFY(blending()->property("ours").toBool());
    store().setPinning(true);
    QVERIFY(!blending()->property("ours").toBool());
    const QObject *timer = root()->property("blink").value<QObject *>();
    QVERIFY(!timer->property("running").toBool());
    store().setPinning(false);
    QVERIFY(timer->property("running").toBool());
    Appearance::of(*qmlEngine(root())).setSeen(false);
    QVERIFY(!timer->property("running").toBool());
}

void ModesTest::withoutOursEveryModeSaysSo()
{
    store().turnPage(u"f"_s, 2);
    for (const CompareMode mode : {CompareMode::Side, CompareMode::Overlay, CompareMode::Blink}) {
        store().setMode(mode);
        QVERIFY(screen().texts().contains(u"No file of ours for this page"_s));
        QVERIFY(!root()->property("blinking").toBool());
    }
}

void ModesTest::anotherFileStartsAfresh()
{
    store().setMode(CompareMode::Overlay);
    FileDetail other = detailOf();
    other.file.id = u"g"_s;
    store().takeBoard(aBoard({aFile(u"f"_s), other.file}, 2));
    store().takeDetail(u"g"_s, other);
    blending()->setProperty("share", 0.9);
    blending()->setProperty("difference", true);
    wheel(middle, 4, Qt::ControlModifier);
    QVERIFY(zoom()->property("zoomed").toBool());
    store().turnPage(u"f"_s, 1);
    QCOMPARE(blending()->property("share").toReal(), 0.9);
    store().selectFile(u"g"_s);
    QCOMPARE(blending()->property("share").toReal(), 0.5);
    QVERIFY(!blending()->property("difference").toBool());
    QVERIFY(!zoom()->property("zoomed").toBool());
}

void ModesTest::theLabelsSayWhatIsSeen()
{
    QVERIFY(screen().texts().contains(u"Ostrel Print file · p1"_s));
    store().setMode(CompareMode::Overlay);
    QVERIFY(screen().texts().contains(u"Ostrel Print file over what we sent"_s));
    store().setAgainst(u"latest"_s);
    QVERIFY(screen().texts().contains(u"Ostrel Print file over the last print"_s));
    store().setMode(CompareMode::Blink);
    QVERIFY(screen().texts().contains(u"Ostrel Print file · p1"_s));
    QTRY_VERIFY(blending()->property("ours").toBool());
    QVERIFY(!screen().texts().contains(u"Ostrel Print file · p1"_s));
}

void ModesTest::aLongLabelLeavesItsEndAndTheZoomPill()
{
    FileDetail detail = detailOf();
    detail.file.supplier = u"A printer of long standing "_s.repeated(8);
    store().takeBoard(aBoard({detail.file}, 2));
    store().takeDetail(u"f"_s, detail);
    store().setMode(CompareMode::Overlay);
    wheel(middle, 4, Qt::ControlModifier);
    const QQuickItem *pill = screen().only("ZoomPill");
    const auto labels = screen().all("Label");
    const auto label = std::find_if(labels.cbegin(), labels.cend(), [](const QQuickItem *each) {
        return each->property("text").toString().endsWith(u"file over what we sent"_s);
    });
    QVERIFY(label != labels.cend());
    QVERIFY((*label)->property("truncated").toBool());
    QCOMPARE((*label)->property("elide").toInt(), int(Qt::ElideMiddle));
    QVERIFY((*label)->mapRectToScene((*label)->boundingRect()).right() < pill->mapToScene({}).x());
}

void ModesTest::aTurnedPageIsThereInTheVeryFrame()
{
    for (const CompareMode mode : {CompareMode::Side, CompareMode::Overlay, CompareMode::Blink}) {
        store().setMode(mode);
        store().turnPage(u"f"_s, 0);
        QTRY_VERIFY(ready());
        QTRY_VERIFY(holds(root(), u"supplier/1"_s));
        QTRY_VERIFY(holds(root(), u"ours/1"_s));
        store().turnPage(u"f"_s, 1);
        QVERIFY(ready());
    }
}

void ModesTest::onANarrowCanvasTheBarTakesMoreRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<qreal>("height");
    QTest::newRow("two in the smallest window") << 560 << 80.0;
    QTest::newRow("four on a screen that has no room for it") << 382 << 152.0;
}

void ModesTest::onANarrowCanvasTheBarTakesMoreRows()
{
    QFETCH(int, width);
    QFETCH(qreal, height);
    store().setMode(CompareMode::Overlay);
    QQuickItem *bar = screen().only("CanvasBar");
    QCOMPARE(bar->height(), 44.0);
    screen().window().resize(width, 744);
    QTRY_COMPARE(bar->height(), height);
    const QRectF whole = bar->mapRectToScene(bar->boundingRect());
    QList<QRectF> places;
    for (const char *type : {"SegmentedControl", "Slider", "CheckBox", "ToolButton", "IconButton"}) {
        for (const QQuickItem *item : screen().all(type)) {
            if (bar->isAncestorOf(item))
                places.append(item->mapRectToScene(item->boundingRect()));
        }
    }
    QCOMPARE(places.size(), 7);
    for (const QRectF &place : places) {
        QVERIFY(whole.contains(place));
        QCOMPARE(std::count_if(places.cbegin(), places.cend(),
                               [&place](const QRectF &other) { return other.intersects(place); }),
                 1);
    }
}

void ModesTest::theWheelZoomsAtThePointer()
{
    const QPointF before((middle.x() - page().x()) / page().width(), (middle.y() - page().y()) / page().height());
    wheel(middle, 8, Qt::ControlModifier);
    QVERIFY(page().width() > 1000);
    const QPointF after((middle.x() - page().x()) / page().width(), (middle.y() - page().y()) / page().height());
    QVERIFY(std::abs(before.x() - after.x()) * page().width() < 1);
    QVERIFY(std::abs(before.y() - after.y()) * page().height() < 1);
    QVERIFY(screen().all("ZoomPill").size() == 1);
    // Both pages are looked at as closely.
    const auto frames = screen().all("PageFrame");
    QCOMPARE(frames[0]->property("page").toRectF().size(), frames[1]->property("page").toRectF().size());
}

void ModesTest::theWheelMovesAZoomedPage()
{
    wheel(middle, -1);
    QCOMPARE(page().topLeft(), QPointF(18, 80));
    wheel(middle, 8, Qt::ControlModifier);
    const QPointF before = page().topLeft();
    wheel(middle, -1);
    QCOMPARE(page().topLeft() - before, QPointF(0, -64));
    wheel(middle, -1, Qt::ShiftModifier);
    QCOMPARE(page().topLeft() - before, QPointF(-64, -64));
}

void ModesTest::theMiddleButtonMovesThePage()
{
    wheel(middle, 8, Qt::ControlModifier);
    const QPointF before = page().topLeft();
    QQuickView *window = &screen().window();
    QTest::mousePress(window, Qt::MiddleButton, {}, middle);
    QTest::mouseMove(window, middle - QPoint(30, 20));
    QTest::mouseRelease(window, Qt::MiddleButton, {}, middle - QPoint(30, 20));
    QCOMPARE(page().topLeft() - before, QPointF(-30, -20));
}

void ModesTest::spaceAndTheLeftButtonMoveThePage()
{
    wheel(middle, 8, Qt::ControlModifier);
    const QPointF before = page().topLeft();
    QQuickView *window = &screen().window();
    QTest::keyPress(window, Qt::Key_Space);
    QTest::mousePress(window, Qt::LeftButton, {}, middle);
    QTest::mouseMove(window, middle - QPoint(30, 20));
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle - QPoint(30, 20));
    QTest::keyRelease(window, Qt::Key_Space);

    QCOMPARE(page().topLeft() - before, QPointF(-30, -20));
    QTest::mousePress(window, Qt::LeftButton, {}, middle);
    QTest::mouseMove(window, middle - QPoint(60, 40));
    QTest::mouseRelease(window, Qt::LeftButton, {}, middle - QPoint(60, 40));
    QCOMPARE(page().topLeft() - before, QPointF(-30, -20));
}

void ModesTest::twoFingersZoom()
{
    static QPointingDevice *pad = QTest::createTouchDevice();
    QQuickView *window = &screen().window();
    const double before = zoom()->property("factor").toDouble();
    QTest::touchEvent(window, pad).press(0, middle - QPoint(20, 0)).press(1, middle + QPoint(20, 0));
    // Touches are told once a frame.
    int reach = 20;
    const auto apart = [&] {
        reach = std::min(reach + 4, 120);
        QTest::touchEvent(window, pad).move(0, middle - QPoint(reach, 0)).move(1, middle + QPoint(reach, 0));
        return zoom()->property("factor").toDouble() > 1.5 * before;
    };
    QTRY_VERIFY(apart());
    QTest::touchEvent(window, pad).release(0, middle - QPoint(reach, 0)).release(1, middle + QPoint(reach, 0));
}

void ModesTest::theKeysZoom()
{
    screen().press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(zoom()->property("factor").toDouble(), 1.25);
    screen().press(Qt::Key_Equal, Qt::ControlModifier);
    screen().press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(zoom()->property("factor").toDouble(), 1.25);
    screen().press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(page().size(), QSizeF(1000, 2000));
    QCOMPARE(zoom()->property("percent").toInt(), 100);
    screen().press(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(page(), QRectF(18, 80, 325, 650));
}

void ModesTest::aDoubleClickTogglesButNotOnAMark()
{
    QQuickView *window = &screen().window();
    QTest::mouseDClick(window, Qt::LeftButton, {}, middle);
    QCOMPARE(zoom()->property("percent").toInt(), 100);
    QTest::mouseDClick(window, Qt::LeftButton, {}, middle);
    QVERIFY(!zoom()->property("zoomed").toBool());
    const QQuickItem *box = screen().all("Outline").first();
    const QPoint onMark = box->mapToScene({box->width() / 2, box->height() / 2}).toPoint();
    QTest::mouseDClick(window, Qt::LeftButton, {}, onMark);
    QVERIFY(!zoom()->property("zoomed").toBool());
}

void ModesTest::thePlaceIsKeptWhenModeRoleAndPageChange()
{
    screen().press(Qt::Key_1, Qt::ControlModifier);
    for (int i = 0; i < 4; ++i)
        wheel(middle, -1);
    const auto centre = [this] {
        const QQuickItem *pane = screen().all("Pane").first();
        const QPointF at = pane->mapToScene({pane->width() / 2, 22 + (pane->height() - 22) / 2});
        return QPointF((at.x() - page().x()) / page().width(), (at.y() - page().y()) / page().height());
    };
    const QPointF before = centre();
    // In a single pane the whole width of the page is seen, so that only its height has a place.
    const auto kept = [&] {
        const bool beside = store().mode() == CompareMode::Side;
        const QPointF way = centre() - before;
        return page().size() == QSizeF(1000, 2000) && std::abs(way.y()) < 0.002 &&
               (!beside || std::abs(way.x()) < 0.002);
    };
    store().setAgainst(u"latest"_s);
    QVERIFY(kept());
    store().setMode(CompareMode::Overlay);
    QVERIFY(kept());
    store().setMode(CompareMode::Blink);
    QVERIFY(kept());
    store().setMode(CompareMode::Side);
    QVERIFY(kept());
    store().turnPage(u"f"_s, 1);
    QVERIFY(zoom()->property("zoomed").toBool());
    store().turnPage(u"f"_s, 0);
    QVERIFY(kept());
}

void ModesTest::aZoomedPageIsReadAtFullResolution()
{
    QTRY_VERIFY(ready());
    const auto picture = screen().images().cached(u"supplier/0"_s);
    QVERIFY(picture);
    QVERIFY(screen().images().pixels().held(*picture, picture->size()).isNull());
    screen().press(Qt::Key_1, Qt::ControlModifier);
    QTRY_VERIFY(!screen().images().pixels().held(*picture, picture->size()).isNull());
}

QTEST_MAIN(ModesTest)
#include "tst_modes.moc"
