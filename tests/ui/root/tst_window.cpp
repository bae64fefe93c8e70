#include "appearance.h"
#include "boards.h"
#include "screen.h"
#include "testclock.h"
#include "windowhandle.h"

#include <QTest>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray rootQml = R"(
import QtQuick
import Vexal.Root
RootView {}
)";

} // namespace

/// The window's own buttons, and taking it by its header and its edges where no window manager helps.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_screen.reset();
        m_store = std::make_unique<Store>(m_clock.clock());
    }

    void anEdgeMovesAloneAndStopsAtTheLeastSize_data();
    void anEdgeMovesAloneAndStopsAtTheLeastSize();
    void theButtonsStandAtTheSamePlaceOnBothScreens_data();
    void theButtonsStandAtTheSamePlaceOnBothScreens();
    void theButtonsAreNamedAndPassedByTheKeyboard();
    void closeEndsTheProgram();
    void minimiseMinimisesIt();
    void zoomFillsTheScreenAndGivesTheSizeBack();
    void aDoubleClickOnTheHeaderZooms();
    void theHeaderMovesTheWindow();
    void aTremblingClickOnTheHeaderDoesNot();
    void whatStandsInTheHeaderIsPressedInstead();
    void anEdgeResizesTheWindow();

private:
    void show(bool signedIn = true)
    {
        if (signedIn) {
            Sample sample;
            sample.board = aBoard({aFile(u"a"_s)});
            m_store->takeSample(sample);
        }
        m_screen = std::make_unique<Screen>(*m_store, rootQml, QSize(1180, 720));
    }
    QQuickView &window() { return m_screen->window(); }
    QQuickItem *button(const QString &name) const
    {
        return m_screen->only("WindowButtons")->findChild<QQuickItem *>(name);
    }
    /// Presses at a point of the window and takes the pointer `by` from there, in small steps on the desktop.
    void drag(QPoint from, QPoint by);

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<Screen> m_screen;
};

void WindowTest::drag(QPoint from, QPoint by)
{
    const QPoint start = window().position() + from;
    const auto send = [this](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, window().mapFromGlobal(at), at, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step)
        send(QEvent::MouseMove, start + by * step / 4, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, start + by, Qt::LeftButton, Qt::NoButton);
}

void WindowTest::anEdgeMovesAloneAndStopsAtTheLeastSize_data()
{
    QTest::addColumn<int>("edges");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<QRect>("frame");
    QTest::newRow("right") << int(Qt::RightEdge) << QPoint(20, 99) << QRect(100, 100, 420, 300);
    QTest::newRow("left") << int(Qt::LeftEdge) << QPoint(20, 99) << QRect(120, 100, 380, 300);
    QTest::newRow("top") << int(Qt::TopEdge) << QPoint(99, -10) << QRect(100, 90, 400, 310);
    QTest::newRow("bottom") << int(Qt::BottomEdge) << QPoint(99, 10) << QRect(100, 100, 400, 310);
    QTest::newRow("a corner") << int(Qt::BottomEdge | Qt::LeftEdge) << QPoint(-10, 10) << QRect(90, 100, 410, 310);
    QTest::newRow("too far from the left") << int(Qt::LeftEdge) << QPoint(300, 0) << QRect(300, 100, 200, 300);
    QTest::newRow("too far from the right") << int(Qt::RightEdge) << QPoint(-300, 0) << QRect(100, 100, 200, 300);
    QTest::newRow("too far from the top") << int(Qt::TopEdge) << QPoint(0, 300) << QRect(100, 300, 400, 100);
    QTest::newRow("too far from the foot") << int(Qt::BottomEdge) << QPoint(0, -300) << QRect(100, 100, 400, 100);
}

void WindowTest::anEdgeMovesAloneAndStopsAtTheLeastSize()
{
    QFETCH(int, edges);
    QFETCH(QPoint, by);
    QFETCH(QRect, frame);
    QCOMPARE(resized({100, 100, 400, 300}, Qt::Edges(edges), by, {200, 100}), frame);
}

void WindowTest::theButtonsStandAtTheSamePlaceOnBothScreens_data()
{
    QTest::addColumn<bool>("signedIn");
    QTest::newRow("the board") << true;
    QTest::newRow("the sign-in screen") << false;
}

void WindowTest::theButtonsStandAtTheSamePlaceOnBothScreens()
{
    QFETCH(bool, signedIn);
    show(signedIn);
    qreal x = 16;
    for (const QString &name : {u"close"_s, u"minimise"_s, u"zoom"_s}) {
        const QRectF area = button(name)->mapRectToScene(button(name)->boundingRect());
        QCOMPARE(area.size(), QSizeF(21, 25));
        QCOMPARE(area.center(), QPointF(x + 6.5, 14 + 6.5));
        x += 13 + 8;
    }
}

void WindowTest::theButtonsAreNamedAndPassedByTheKeyboard()
{
    show();
    for (const QString &name : {u"close"_s, u"minimise"_s, u"zoom"_s}) {
        QVERIFY(!button(name)->activeFocusOnTab());
        QCOMPARE(button(name)->property("name").toString().toLower(), name);
    }
}

void WindowTest::closeEndsTheProgram()
{
    show();
    QTimer::singleShot(0, &window(), [this] { m_screen->click(button(u"close"_s)); });
    QTimer::singleShot(5s, &window(), [] { QCoreApplication::exit(1); });
    QCOMPARE(QGuiApplication::exec(), 0);
    QVERIFY(!window().isVisible());
}

void WindowTest::minimiseMinimisesIt()
{
    show();
    m_screen->click(button(u"minimise"_s));
    QTRY_VERIFY(window().windowStates().testFlag(Qt::WindowMinimized));
}

void WindowTest::zoomFillsTheScreenAndGivesTheSizeBack()
{
    show();
    m_screen->click(button(u"zoom"_s));
    QTRY_VERIFY(window().windowStates().testFlag(Qt::WindowMaximized));
    m_screen->click(button(u"zoom"_s));
    QTRY_VERIFY(!window().windowStates().testFlag(Qt::WindowMaximized));
}

void WindowTest::aDoubleClickOnTheHeaderZooms()
{
    show();
    QTest::mouseDClick(&window(), Qt::LeftButton, {}, QPoint(200, 20));
    QTRY_VERIFY(window().windowStates().testFlag(Qt::WindowMaximized));
}

void WindowTest::theHeaderMovesTheWindow()
{
    show();
    const QPoint before = window().position();
    drag(QPoint(600, 10), QPoint(40, 24));
    QTRY_COMPARE(window().position(), before + QPoint(40, 24));
}

void WindowTest::aTremblingClickOnTheHeaderDoesNot()
{
    show();
    const QPoint before = window().position();
    drag(QPoint(600, 10), QPoint(2, 1));
    QCOMPARE(window().position(), before);
}

void WindowTest::whatStandsInTheHeaderIsPressedInstead()
{
    show();
    const QPoint before = window().position();
    const QQuickItem *close = button(u"close"_s);
    drag(close->mapToScene({10, 12}).toPoint(), QPoint(40, 24));
    QCOMPARE(window().position(), before);
    QVERIFY(window().isVisible());
}

void WindowTest::anEdgeResizesTheWindow()
{
    show();
    const QRect before = window().geometry();
    drag(QPoint(1178, 400), QPoint(40, 24));
    QTRY_COMPARE(window().geometry(), before.adjusted(0, 0, 40, 0));
}

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
