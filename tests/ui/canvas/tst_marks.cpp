#include "canvasscreen.h"
#include "pagezoom.h"

#include <QSignalSpy>
#include <QTest>

using namespace vexal;
using namespace vexal::test;

namespace {

constexpr QSize size(1000, 744);
const QPointF corner(18, 80);  // of the supplier's page
const QSizeF fitted(325, 650); // and its size

Note noteAt(const QString &id, std::optional<QPointF> place, qint64 page = 0)
{
    Note note;
    note.id = id;
    note.page = page;
    note.text = u"Text of "_s + id;
    if (place) {
        note.x = place->x();
        note.y = place->y();
    }
    return note;
}

FileDetail reviewed()
{
    FileDetail detail = detailOf({marked(u"a"_s, {0.1, 0.2, 0.3, 0.1}), marked(u"low"_s, {0.2, 0.9, 0.2, 0.05}),
                                  marked(u"on two"_s, {0.4, 0.4, 0.1, 0.1})});
    detail.findings[0].boxes = QList<Box>{{0.6, 0.6, 0.1, 0.1}};
    detail.findings[0].ref_box = Box{0.12, 0.2, 0.3, 0.1};
    detail.findings[2].page = 1;
    Note resolved = noteAt(u"resolved"_s, QPointF(0.3, 0.3));
    resolved.resolved = 1;
    detail.comments = {noteAt(u"whole page"_s, {}), resolved, noteAt(u"pinned"_s, QPointF(0.5, 0.25)),
                       noteAt(u"elsewhere"_s, QPointF(0.5, 0.25), 1)};
    return detail;
}

} // namespace

/// What lies on the pages: boxes, pins, the pin being placed, the loupe.
class MarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void furtherBoxesAreOneMark();
    void aBoxBeyondThePageEndsWithIt();
    void marksThatDoNotShowAreNotFelt();
    void pinsStandAtTheirPlacesWithTheirNumbers();
    void aPressedPinSaysItsNote();
    void aClickOnThePagePlacesNothingUnlessPinning();
    void aClickWhilePinningIsThePlace();
    void aClickOnABoxWhilePinningIsThePlace();
    void aZoomedPageGivesTheSamePlace();
    void thePageOfOursTakesNoPin();
    void theKeyboardPlacesAPin();
    void pinningIsToldAndEscapeEndsIt();
    void whatPinningSaysCoversNoPageThatLeavesRoom();
    void theDraftsWordStaysOnThePage();
    void marksKeepTheirSizeWhenZoomed();
    void theLoupeOpensForTheFocusedFinding();
    void theLoupeIsAsLargeAsItsFormula();
    void escapeClosesTheLoupeAndClearsTheFocus();
    void thePageSlidesUpFromUnderTheLoupe();
    void focusingAFindingTurnsToItsPage();
    void focusingAFindingOnAZoomedPageShowsIt();
    void theFocusedFindingAskedForAgainIsShownAgain();
    void theCropShowsItsBox();
    void theKeyboardReachesEveryMark();

private:
    QQuickItem *root() const { return m_canvas->screen->window().rootObject(); }
    Screen &screen() const { return *m_canvas->screen; }
    Store &store() const { return m_canvas->store; }
    void clickAt(QPointF at) { QTest::mouseClick(&screen().window(), Qt::LeftButton, {}, at.toPoint()); }
    static qreal lineOf(const QQuickItem *box)
    {
        return box->findChild<QQuickItem *>(u"line"_s)->property("line").toReal();
    }
    static QList<QQuickItem *> called(const QString &name, const QQuickItem *mark)
    {
        QList<QQuickItem *> items = mark->childItems();
        items.removeIf([&name](const QQuickItem *item) { return item->objectName() != name; });
        return items;
    }
    bool loupeStands() const
    {
        const auto loupes = screen().all("Loupe");
        return loupes.size() == 1 && loupes.first()->opacity() == 1;
    }
    QRectF sceneRect(const QQuickItem *item) const { return item->mapRectToScene(item->boundingRect()); }

    std::unique_ptr<CanvasScreen> m_canvas;
};

void MarksTest::init()
{
    m_canvas.reset();
    m_canvas = std::make_unique<CanvasScreen>(
        reviewed(), size, QHash<QString, QColor>{{u"supplier/0"_s, Qt::white}, {u"ours/0"_s, Qt::white}});
}

void MarksTest::furtherBoxesAreOneMark()
{
    const QQuickItem *mark = screen().all("BoxMark").first();
    const QList<QQuickItem *> boxes = called(u"box"_s, mark);
    const QList<QQuickItem *> halos = called(u"halo"_s, mark);
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(sceneRect(boxes[1]).topLeft(), corner + QPointF(0.6 * 325 - 3, 0.6 * 650 - 3));
    // The pointer on one of them is the pointer on all.
    QTest::mouseMove(&screen().window(), sceneRect(boxes[1]).center().toPoint());
    QTRY_COMPARE(lineOf(boxes[0]), 2.4);
    screen().click(boxes[1]);
    QCOMPARE(store().focus(), u"a"_s);
    QCOMPARE(halos.size(), 2);
    for (const QQuickItem *halo : halos) {
        QTRY_COMPARE(halo->property("line").toReal(), 5.0);
        // Under the lines of both, so that neither is cut where the two meet.
        QVERIFY(mark->childItems().indexOf(halo) < mark->childItems().indexOf(boxes[0]));
    }
}

void MarksTest::aBoxBeyondThePageEndsWithIt()
{
    FileDetail detail = detailOf({marked(u"large"_s, {-0.5, -0.3, 3, 0.4}), marked(u"beside"_s, {1.5, 0.5, 0.1, 0.1})});
    store().takeDetail(u"f"_s, detail);
    QTRY_COMPARE(screen().all("BoxMark").size(), 2);
    const QRectF page(corner, fitted);
    const auto drawn = [this](int mark) {
        return sceneRect(called(u"box"_s, screen().all("BoxMark")[mark]).constFirst());
    };
    QCOMPARE(drawn(0), QRectF(page.topLeft(), QSizeF(325, 65)).adjusted(-3, -3, 3, 3));
    QCOMPARE(drawn(1), QRectF(page.right() - 3, page.top() + 325 - 3, 8, 71));
}

void MarksTest::marksThatDoNotShowAreNotFelt()
{
    const QQuickItem *box = called(u"box"_s, screen().all("BoxMark").first()).constFirst();
    auto *blending = root()->property("blending").value<QObject *>();
    store().setMode(CompareMode::Blink);
    Appearance::of(*qmlEngine(root())).setSeen(false);
    blending->setProperty("ours", true);
    screen().click(box);
    QVERIFY(!store().focus());
    blending->setProperty("ours", false);
    screen().click(box);
    QCOMPARE(store().focus(), u"a"_s);
}

void MarksTest::pinsStandAtTheirPlacesWithTheirNumbers()
{
    const QQuickItem *pin = screen().only("NotePin");
    QVERIFY(pin);
    QCOMPARE(pin->mapToScene({}), corner + QPointF(0.5 * 325, 0.25 * 650));
    // The resolved note before it keeps its number, the note without a place has none.
    QVERIFY(screen().texts().contains(u"2"_s));
    const QQuickItem *head = screen().only("PinShape");
    QCOMPARE(head->size(), QSizeF(24, 29));
    QCOMPARE(sceneRect(head).bottom(), pin->mapToScene({}).y());
}

void MarksTest::aPressedPinSaysItsNote()
{
    screen().click(screen().only("PinShape"));
    QTRY_VERIFY(screen().texts().contains(u"Text of pinned"_s));
}

void MarksTest::aClickOnThePagePlacesNothingUnlessPinning()
{
    clickAt(corner + QPointF(200, 400));
    QVERIFY(!store().draftPin());
}

void MarksTest::aClickWhilePinningIsThePlace()
{
    screen().press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(store().pinning());
    clickAt(corner + QPointF(200, 400));
    QVERIFY(!store().pinning());
    QCOMPARE(store().draftPin(), QPointF(200 / 325.0, 400 / 650.0));
    QCOMPARE(screen().only("DraftPin")->mapToScene({}), corner + QPointF(200, 400));
    QVERIFY(screen().texts().contains(u"Note"_s));
}

void MarksTest::aClickOnABoxWhilePinningIsThePlace()
{
    store().setPinning(true);
    clickAt(corner + QPointF(0.25 * 325, 0.25 * 650));
    QVERIFY(store().draftPin());
    QVERIFY(!store().focus());
}

void MarksTest::aZoomedPageGivesTheSamePlace()
{
    screen().press(Qt::Key_1, Qt::ControlModifier);
    store().setPinning(true);
    const QRectF page = sceneRect(screen().all("BoxMarks").first());
    QCOMPARE(page.size(), QSizeF(1000, 2000));
    const QPointF wanted(0.5, 0.47);
    const QPointF at = page.topLeft() + QPointF(wanted.x() * 1000, wanted.y() * 2000);
    clickAt(at);
    QVERIFY(store().draftPin());
    // Within half a pixel of the page.
    QVERIFY(std::abs(store().draftPin()->x() - wanted.x()) * 1000 <= 0.5);
    QVERIFY(std::abs(store().draftPin()->y() - wanted.y()) * 2000 <= 0.5);
}

void MarksTest::thePageOfOursTakesNoPin()
{
    store().setPinning(true);
    clickAt(corner + QPointF(473 + 18 + 100, 300));
    QVERIFY(store().pinning());
    QVERIFY(!store().draftPin());
}

void MarksTest::theKeyboardPlacesAPin()
{
    store().setPinning(true);
    screen().press(Qt::Key_Right);
    screen().press(Qt::Key_Down, Qt::ShiftModifier);
    screen().press(Qt::Key_Return);
    QVERIFY(store().draftPin());
    QCOMPARE(store().draftPin()->x() * 325, 162.5 + 12);
    QCOMPARE(store().draftPin()->y() * 650, 325.0 + 1);
}

void MarksTest::pinningIsToldAndEscapeEndsIt()
{
    QVERIFY(!screen().texts().contains(u"Click the page"_s));
    QQuickItem *tool = screen().only("ToolButton");
    QCOMPARE(tool->property("help").toString(), u"Pin a note on the supplier page (⌘N)"_s);
    screen().click(tool);
    QVERIFY(store().pinning());
    QVERIFY(screen().texts().contains(u"Click the page"_s));
    QCOMPARE(screen().only("PinLayer")->cursor().shape(), Qt::CrossCursor);
    screen().press(Qt::Key_Escape);
    QVERIFY(!store().pinning());
}

void MarksTest::whatPinningSaysCoversNoPageThatLeavesRoom()
{
    const auto hint = [this] {
        const auto capsules = screen().all("Capsule");
        return capsules.size() == 1 ? sceneRect(capsules.first()) : QRectF();
    };
    store().setPinning(true);
    const QRectF tall(corner, fitted);
    QVERIFY(tall.contains(hint()));
    QCOMPARE(hint().center().x(), tall.center().x());

    FileDetail detail = reviewed();
    detail.file.pages->operator[](0).px = QList<double>{2000, 1000};
    m_canvas = std::make_unique<CanvasScreen>(detail, size, QHash<QString, QColor>{});
    store().setPinning(true);
    const QRectF wide(corner, QSizeF(473, 236.5));
    QVERIFY(hint().top() > wide.bottom());
    QCOMPARE(hint().center().x(), wide.center().x());
}

void MarksTest::theDraftsWordStaysOnThePage()
{
    const QRectF page(corner, fitted);
    const auto word = [this] { return sceneRect(screen().only("Capsule")); };
    store().placePin({0.2, 0.5});
    QVERIFY(page.contains(word()));
    QVERIFY(word().left() > page.left() + 0.2 * page.width());
    store().placePin({0.98, 0.5});
    QVERIFY(page.contains(word()));
    QVERIFY(word().right() < page.left() + 0.98 * page.width());
}

void MarksTest::marksKeepTheirSizeWhenZoomed()
{
    screen().press(Qt::Key_1, Qt::ControlModifier);
    const QRectF page = sceneRect(screen().all("BoxMarks").first());
    const QQuickItem *halo = screen().all("Outline").first();
    QCOMPARE(sceneRect(halo), QRectF(page.topLeft() + QPointF(100 - 3, 400 - 3), QSizeF(300 + 6, 200 + 6)));
    QCOMPARE(halo->property("line").toReal(), 4.0);
    QCOMPARE(screen().only("NotePin")->mapToScene({}), page.topLeft() + QPointF(500, 500));
    QCOMPARE(screen().only("PinShape")->size(), QSizeF(24, 29));
}

void MarksTest::theLoupeOpensForTheFocusedFinding()
{
    QVERIFY(screen().all("Loupe").isEmpty());
    store().focusFinding(u"a"_s);
    QTRY_VERIFY(!screen().all("Crop").isEmpty());
    const auto crops = screen().all("Crop");
    QCOMPARE(crops.size(), 2);
    QTRY_COMPARE(crops[0]->property("label").toString(), u"Ostrel Print"_s);
    QCOMPARE(crops[1]->property("label").toString(), u"What we sent"_s);
    store().setAgainst(u"latest"_s);
    QTRY_VERIFY(screen().all("Loupe").isEmpty());
}

void MarksTest::theLoupeIsAsLargeAsItsFormula()
{
    store().focusFinding(u"a"_s);
    QTRY_VERIFY(!screen().all("Crop").isEmpty());
    const QQuickItem *loupe = screen().only("Loupe");
    QCOMPARE(loupe->width(), 1000.0 - 56);
    const qreal width = 1000 - 56 - 24;
    const auto crops = screen().all("Crop");
    for (const QQuickItem *crop : crops)
        QCOMPARE(crop->size(), QSizeF((width - 12) / 2, (width - 12) / 2 / 2.6 + 20));
    QCOMPARE(crops[1]->mapToScene({}).x() - crops[0]->mapToScene({}).x(), crops[0]->width() + 12);
    QTRY_COMPARE(std::round(sceneRect(loupe).bottom() * 1000), 720'000.0);
}

void MarksTest::escapeClosesTheLoupeAndClearsTheFocus()
{
    store().focusFinding(u"a"_s);
    QTRY_VERIFY(!screen().all("Loupe").isEmpty());
    screen().press(Qt::Key_Escape);
    QVERIFY(!store().focus());
    QTRY_VERIFY(screen().all("Loupe").isEmpty());
}

void MarksTest::thePageSlidesUpFromUnderTheLoupe()
{
    const QQuickItem *marks = screen().all("BoxMarks").first();
    store().focusFinding(u"a"_s);
    QTRY_VERIFY(loupeStands());
    QCOMPARE(sceneRect(marks).topLeft(), corner);
    store().focusFinding(u"low"_s);
    const QQuickItem *loupe = screen().only("Loupe");
    QTRY_VERIFY(sceneRect(called(u"box"_s, screen().all("BoxMark")[1]).constFirst()).bottom() <
                744 - 24 - loupe->height() - 23);
    QCOMPARE(sceneRect(marks).size(), fitted);
    store().clearFocus();
    QTRY_COMPARE(sceneRect(marks).topLeft(), corner);
}

void MarksTest::focusingAFindingTurnsToItsPage()
{
    store().focusFinding(u"on two"_s);
    QCOMPARE(store().shownPage(u"f"_s), 1);
    QTRY_COMPARE(screen().all("Crop").size(), 2);
}

void MarksTest::focusingAFindingOnAZoomedPageShowsIt()
{
    screen().press(Qt::Key_1, Qt::ControlModifier);
    store().focusFinding(u"low"_s);
    QTRY_VERIFY(loupeStands());
    const QRectF free(18, 80, 473, 744 - 24 - screen().only("Loupe")->height() - 80);
    QTRY_VERIFY(free.contains(sceneRect(called(u"box"_s, screen().all("BoxMark")[1]).constFirst())));
}

void MarksTest::theFocusedFindingAskedForAgainIsShownAgain()
{
    screen().press(Qt::Key_1, Qt::ControlModifier);
    store().focusFinding(u"low"_s);
    QTRY_VERIFY(loupeStands());
    auto *zoom = root()->findChild<PageZoom *>();
    const auto shown = [this] {
        return sceneRect(called(u"box"_s, screen().all("BoxMark")[1]).constFirst()).bottom() < size.height();
    };
    QTRY_VERIFY(shown());
    zoom->moveBy(0, 2000, fitted);
    QTRY_VERIFY(!shown());
    store().focusFinding(u"low"_s);
    QTRY_VERIFY(shown());
}

void MarksTest::theCropShowsItsBox()
{
    store().focusFinding(u"a"_s);
    QTRY_VERIFY(!screen().all("Crop").isEmpty());
    for (const QQuickItem *crop : screen().all("Crop")) {
        const QRectF page = crop->property("page").toRectF();
        // The region is 0.57 of the page wide and fills the frame.
        QCOMPARE(page.width() * 0.57, crop->width());
        QCOMPARE(page.height(), page.width() * 2);
    }
}

void MarksTest::theKeyboardReachesEveryMark()
{
    QStringList reached;
    for (int i = 0; i < 20; ++i) {
        screen().press(Qt::Key_Tab);
        if (const QQuickItem *item = screen().window().activeFocusItem())
            reached.append(item->objectName() == "box"_L1
                               ? u"box"_s
                               : QString::fromLatin1(item->metaObject()->className()).section(u"_QML"_s, 0, 0));
    }
    for (const QString &type : {u"box"_s, u"vexal::PinShape"_s, u"ToolButton"_s, u"SegmentedControl"_s})
        QVERIFY2(reached.contains(type), qPrintable(type + u" in "_s + reached.join(u' ')));
    QQuickItem *box = called(u"box"_s, screen().all("BoxMark").first()).constFirst();
    box->forceActiveFocus(Qt::TabFocusReason);
    screen().press(Qt::Key_Down);
    QCOMPARE(screen().window().activeFocusItem(), called(u"box"_s, screen().all("BoxMark")[1]).constFirst());
    screen().press(Qt::Key_Return);
    QCOMPARE(store().focus(), u"low"_s);
    screen().press(Qt::Key_Space);
    QVERIFY(!store().focus());
}

QTEST_MAIN(MarksTest)
#include "tst_marks.moc"
