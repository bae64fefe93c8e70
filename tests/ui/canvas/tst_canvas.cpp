#include "canvasscreen.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace vexal::test;

class CanvasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thePanesAreAsLargeAsTheCanvasAllows_data();
    void thePanesAreAsLargeAsTheCanvasAllows();
    void bothPagesShowTheirPictures();
    void aTurnedPageNeverShowsTheOldPicture();
    void theMarksLieOnTheSuppliersPageAlone();
    void aClickOnAMarkFocusesItsFindingAndAnotherLetsGo();
    void thePressActionOfAMarkIsTheSame();
    void theKeyboardTurnsPagesAndStopsAtTheEnds();
    void theButtonsTurnPagesAndRestAtTheEnds();
    void thePickerOffersTheRolesOfThePage();
    void choosingARoleCarriesOverToOtherPages();
    void aPageWithoutAnyOfOursSaysSo();
    void aFileWithoutPagesSaysSo();
    void thePlacedPinStandsAtItsFractions();
    void textsFromOutsideStayText();

private:
    void show(const FileDetail &detail, QSize size = {1000, 744}, const QHash<QString, QColor> &pictures = {});

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<Screen> m_screen;
};

void CanvasTest::init()
{
    m_screen.reset();
    m_store = std::make_unique<Store>(m_clock.clock());
}

void CanvasTest::show(const FileDetail &detail, QSize size, const QHash<QString, QColor> &pictures)
{
    m_store->takeBoard(aBoard({detail.file}));
    m_store->takeDetail(detail.file.id, detail);
    m_screen = std::make_unique<Screen>(*m_store, canvasQml, size, colours(pictures));
}

void CanvasTest::thePanesAreAsLargeAsTheCanvasAllows_data()
{
    QTest::addColumn<QSize>("canvas");
    QTest::addColumn<QSizeF>("box");
    QTest::addColumn<QSizeF>("page");
    QTest::newRow("1000 by 700") << QSize(1000, 700) << QSizeF(473, 650) << QSizeF(325, 650);
    QTest::newRow("wide and low") << QSize(1600, 300) << QSizeF(773, 250) << QSizeF(125, 250);
    QTest::newRow("narrow and high") << QSize(600, 900) << QSizeF(273, 850) << QSizeF(273, 546);
    QTest::newRow("the smallest window") << QSize(891, 560) << QSizeF(418.5, 510) << QSizeF(255, 510);
    QTest::newRow("the usual window") << QSize(1211, 780) << QSizeF(578.5, 730) << QSizeF(365, 730);
}

void CanvasTest::thePanesAreAsLargeAsTheCanvasAllows()
{
    QFETCH(QSize, canvas);
    QFETCH(QSizeF, box);
    QFETCH(QSizeF, page);
    const int bar = canvas.width() < 740 ? 80 : 44;
    show(detailOf(), canvas + QSize(0, bar));
    const auto panes = m_screen->all("Pane");
    QCOMPARE(panes.size(), 2);
    for (const QQuickItem *pane : panes)
        QCOMPARE(pane->size(), box + QSizeF(0, 22));
    QCOMPARE(panes[0]->mapToScene({}), QPointF(18, bar + 14));
    QCOMPARE(panes[1]->mapToScene({}), QPointF(18 + box.width() + 18, bar + 14));
    for (const QQuickItem *frame : m_screen->all("PageFrame")) {
        QCOMPARE(frame->size(), page);
        QCOMPARE(frame->y(), 22);
    }
}

void CanvasTest::bothPagesShowTheirPictures()
{
    show(detailOf(), {1000, 744}, {{u"supplier/0"_s, Qt::red}, {u"ours/0"_s, Qt::blue}});
    const auto frames = m_screen->all("PageFrame");
    QCOMPARE(frames.size(), 2);
    for (const QQuickItem *frame : frames)
        QTRY_VERIFY(frame->property("ready").toBool());
    const QImage image = m_screen->window().grabWindow();
    QCOMPARE(image.pixelColor(18 + 160, 44 + 14 + 22 + 300), QColor(Qt::red));
    QCOMPARE(image.pixelColor(18 + 473 + 18 + 160, 44 + 14 + 22 + 300), QColor(Qt::blue));
}

void CanvasTest::aTurnedPageNeverShowsTheOldPicture()
{
    show(detailOf(), {1000, 744}, {{u"supplier/0"_s, Qt::red}, {u"ours/0"_s, Qt::blue}, {u"supplier/1"_s, Qt::green}});
    const auto pictures = m_screen->all("RemoteImage");
    QTRY_VERIFY(pictures[0]->property("hasPicture").toBool());
    m_store->turnPage(u"f"_s, 1);
    // It may have been decoded ahead; what it never is, is the page before.
    QVERIFY(m_screen->window().grabWindow().pixelColor(18 + 160, 44 + 14 + 22 + 100) != QColor(Qt::red));
    QTRY_VERIFY(pictures[0]->property("hasPicture").toBool());
    QCOMPARE(m_screen->window().grabWindow().pixelColor(18 + 160, 44 + 14 + 22 + 100), QColor(Qt::green));
    // The first page is held still: it is there in the very frame.
    m_store->turnPage(u"f"_s, 0);
    QVERIFY(pictures[0]->property("hasPicture").toBool());
    QCOMPARE(m_screen->window().grabWindow().pixelColor(18 + 160, 44 + 14 + 22 + 100), QColor(Qt::red));
}

void CanvasTest::theMarksLieOnTheSuppliersPageAlone()
{
    show(detailOf({marked(u"a"_s, {0.1, 0.2, 0.3, 0.1}), marked(u"b"_s, {0.5, 0.5, 0, 0}),
                   marked(u"c"_s, {0, 0, 1, 1}, u"latest"_s)}));
    const auto marks = m_screen->all("BoxMark");
    QCOMPARE(marks.size(), 2);
    const QPointF page(18, 44 + 14 + 22);
    const auto box = [&](int mark) {
        const auto children = marks[mark]->childItems();
        const auto first = std::find_if(children.cbegin(), children.cend(),
                                        [](const QQuickItem *child) { return child->objectName() == "box"_L1; });
        return (*first)->mapRectToScene((*first)->boundingRect());
    };
    QCOMPARE(box(0), QRectF(page + QPointF(32.5 - 3, 130 - 3), QSizeF(97.5 + 6, 65 + 6)));
    QCOMPARE(box(1), QRectF(page + QPointF(162.5 - 3, 325 - 3), QSizeF(8, 8)));
    // What is drawn lies on whole pixels, within half a one of its place.
    for (const QQuickItem *line : m_screen->all("Outline")) {
        const QPointF at = line->mapToScene({});
        QCOMPARE(at, QPointF(at.toPoint()));
    }
}

void CanvasTest::aClickOnAMarkFocusesItsFindingAndAnotherLetsGo()
{
    show(detailOf({marked(u"a"_s, {0.1, 0.2, 0.3, 0.1})}));
    const QQuickItem *box = m_screen->all("Outline").first();
    m_screen->click(box);
    QCOMPARE(m_store->focus(), u"a"_s);
    m_screen->click(box);
    QVERIFY(!m_store->focus());
}

void CanvasTest::thePressActionOfAMarkIsTheSame()
{
    show(detailOf({marked(u"a"_s, {0.1, 0.2, 0.3, 0.1})}));
    QVERIFY(QMetaObject::invokeMethod(m_screen->only("BoxMark"), "toggled"));
    QCOMPARE(m_store->focus(), u"a"_s);
}

void CanvasTest::theKeyboardTurnsPagesAndStopsAtTheEnds()
{
    show(detailOf());
    m_screen->press(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_store->shownPage(u"f"_s), 0);
    for (int i = 0; i < 5; ++i)
        m_screen->press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_store->shownPage(u"f"_s), 2);
    QCOMPARE(m_store->page().value(u"f"_s), 2);
    m_screen->press(Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(m_store->shownPage(u"f"_s), 1);
}

void CanvasTest::theButtonsTurnPagesAndRestAtTheEnds()
{
    show(detailOf());
    const auto buttons = m_screen->all("IconButton");
    QCOMPARE(buttons.size(), 2);
    QVERIFY(!buttons[0]->isEnabled());
    m_screen->click(buttons[1]);
    QCOMPARE(m_store->shownPage(u"f"_s), 1);
    QVERIFY(buttons[0]->isEnabled());
    m_screen->click(buttons[1]);
    QCOMPARE(m_store->shownPage(u"f"_s), 2);
    QVERIFY(!buttons[1]->isEnabled());
    m_screen->click(buttons[0]);
    QCOMPARE(m_store->shownPage(u"f"_s), 1);
}

void CanvasTest::thePickerOffersTheRolesOfThePage()
{
    show(detailOf());
    const QQuickItem *picker = m_screen->all("SegmentedControl").first();
    QCOMPARE(picker->property("titles").toStringList(), QStringList({u"What we sent"_s, u"Last print"_s}));
    QCOMPARE(picker->property("current").toInt(), 0);
    m_store->turnPage(u"f"_s, 1);
    QCOMPARE(picker->property("titles").toStringList(), QStringList{u"What we sent"_s});
}

void CanvasTest::choosingARoleCarriesOverToOtherPages()
{
    show(detailOf());
    QQuickItem *picker = m_screen->all("SegmentedControl").first();
    QVERIFY(QMetaObject::invokeMethod(picker, "chosen", Q_ARG(int, 1)));
    QCOMPARE(m_store->against(), u"latest"_s);
    QVERIFY(m_screen->texts().contains(u"Last print"_s));
    m_store->turnPage(u"f"_s, 1);
    // This page has only what we sent: it stands in, and the wish stays.
    QCOMPARE(m_screen->all("Pane")[1]->property("missing").toString(), QString());
    QCOMPARE(m_store->against(), u"latest"_s);
}

void CanvasTest::aPageWithoutAnyOfOursSaysSo()
{
    show(detailOf());
    m_store->turnPage(u"f"_s, 2);
    QCOMPARE(m_screen->only("SegmentedControl")->property("name").toString(), u"View"_s);
    QVERIFY(m_screen->texts().contains(u"No file of ours was found for this page"_s));
    QVERIFY(m_screen->texts().contains(u"No file of ours for this page"_s));
    QVERIFY(m_screen->texts().contains(u"The sync couldn't find one to compare with."_s));
    m_store->setAgainst(u"latest"_s);
    QVERIFY(m_screen->texts().contains(u"No last print for this page"_s));
}

void CanvasTest::aFileWithoutPagesSaysSo()
{
    show(aDetail(u"f"_s, 0));
    QVERIFY(m_screen->texts().contains(u"No pages in this file."_s));
    QVERIFY(m_screen->all("Pane").isEmpty());
}

void CanvasTest::thePlacedPinStandsAtItsFractions()
{
    show(detailOf());
    QVERIFY(m_screen->all("DraftPin").isEmpty());
    m_store->placePin({0.62, 0.30});
    QCOMPARE(m_screen->only("DraftPin")->mapToScene({}), QPointF(18 + 0.62 * 325, 44 + 14 + 22 + 0.30 * 650));
}

void CanvasTest::textsFromOutsideStayText()
{
    FileDetail detail = detailOf();
    detail.file.supplier = u"<b>Ostrel</b><img src='http://127.0.0.1:9/'>"_s;
    show(detail);
    for (const QQuickItem *label : m_screen->all("Label"))
        QCOMPARE(label->property("textFormat").toInt(), int(Qt::PlainText));
    QVERIFY(m_screen->texts().contains(u"<b>Ostrel</b><img src='http://127.0.0.1:9/'> file · p1"_s));
}

QTEST_MAIN(CanvasTest)
#include "tst_canvas.moc"
