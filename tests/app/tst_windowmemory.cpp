#include "windowmemory.h"

#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <memory>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

using Wanted = std::optional<QRect>;

const QRect desk(0, 27, 1920, 1053);     // the main screen under a bar
const QRect beside(1920, 0, 2560, 1440); // one at its right
const QRect laptop(0, 0, 1024, 600);     // smaller than the window likes

} // namespace

class WindowMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"Vexal/Window.ini"_s);
    }

    void theLeastSizeIsWhatThereIsRoomFor()
    {
        QCOMPARE(leastSize({1920, 1080}), QSize(1180, 720));
        QCOMPARE(leastSize({1024, 600}), QSize(1024, 600));
        QCOMPARE(leastSize({2560, 600}), QSize(1180, 600));
    }

    void aWindowIsWhollyOnAScreen_data();
    void aWindowIsWhollyOnAScreen();
    void aPlaceIsReadAsItWasWritten();
    void whatIsNoPlaceIsNone_data();
    void whatIsNoPlaceIsNone();
    void theFirstTimeAWindowStandsInTheMiddle();
    void aWindowComesBackToWhereItWas();
    void aWindowThatWasNeverMovedWritesNothing();
    void aPlaceThatWasJustTakenIsKeptAtTheEnd();
    void aZoomedWindowRemembersWhereItWasBefore();
    void aMinimisedWindowIsNoPlace();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void WindowMemoryTest::aWindowIsWhollyOnAScreen_data()
{
    QTest::addColumn<Wanted>("wanted");
    QTest::addColumn<QList<QRect>>("screens");
    QTest::addColumn<QRect>("frame");
    QTest::newRow("the first time") << Wanted() << QList{desk, beside} << QRect(210, 84, 1500, 940);
    QTest::newRow("the first time on a small screen") << Wanted() << QList{laptop} << laptop;
    QTest::newRow("as it was") << Wanted({100, 100, 1300, 800}) << QList{desk} << QRect(100, 100, 1300, 800);
    QTest::newRow("on the other screen") << Wanted({2000, 10, 1300, 800}) << QList{desk, beside}
                                         << QRect(2000, 10, 1300, 800);
    QTest::newRow("the other screen is gone")
        << Wanted({2000, 10, 1300, 800}) << QList{desk} << QRect(310, 154, 1300, 800);
    QTest::newRow("over the left side") << Wanted({-600, 100, 1300, 800}) << QList{desk} << QRect(0, 100, 1300, 800);
    QTest::newRow("under the bar") << Wanted({10, 0, 1300, 800}) << QList{desk} << QRect(10, 27, 1300, 800);
    QTest::newRow("over the foot") << Wanted({10, 900, 1300, 800}) << QList{desk} << QRect(10, 280, 1300, 800);
    QTest::newRow("on two screens") << Wanted({1700, 100, 1300, 800}) << QList{desk, beside}
                                    << QRect(1920, 100, 1300, 800);
    QTest::newRow("larger than the screen") << Wanted({0, 0, 3000, 2000}) << QList{desk} << desk;
    QTest::newRow("smaller than may be") << Wanted({10, 50, 20, 20}) << QList{desk} << QRect(10, 50, 1180, 720);
}

void WindowMemoryTest::aWindowIsWhollyOnAScreen()
{
    QFETCH(Wanted, wanted);
    QFETCH(QList<QRect>, screens);
    QFETCH(QRect, frame);
    QCOMPARE(frameOnScreen(wanted, screens), frame);
}

void WindowMemoryTest::aPlaceIsReadAsItWasWritten()
{
    QCOMPARE(readPlace(m_path), std::nullopt);
    const WindowPlace place{QRect(-20, 30, 1300, 800), true};
    writePlace(m_path, place);
    QCOMPARE(readPlace(m_path), place);
}

void WindowMemoryTest::whatIsNoPlaceIsNone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("noise") << QByteArray("\x01\x02[=\xff");
    QTest::newRow("words") << QByteArray("[General]\nLeft=a\nTop=b\nWidth=c\nHeight=d\n");
    QTest::newRow("no size") << QByteArray("[General]\nLeft=1\nTop=2\n");
    QTest::newRow("a size below nothing") << QByteArray("[General]\nLeft=1\nTop=2\nWidth=-5\nHeight=10\n");
}

void WindowMemoryTest::whatIsNoPlaceIsNone()
{
    QFETCH(QByteArray, text);
    QFile file(m_folder->filePath(u"Window.ini"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
    file.close();
    QCOMPARE(readPlace(file.fileName()), std::nullopt);
}

void WindowMemoryTest::theFirstTimeAWindowStandsInTheMiddle()
{
    QWindow window;
    const WindowMemory memory(window, m_path);
    QCOMPARE(window.geometry(), frameOnScreen({}, {QGuiApplication::primaryScreen()->availableGeometry()}));
}

void WindowMemoryTest::aWindowComesBackToWhereItWas()
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect frame(room.topLeft() + QPoint(0, 10), leastSize(room.size()));
    QWindow first;
    first.setFlag(Qt::FramelessWindowHint);
    const WindowMemory memory(first, m_path);
    first.show();
    first.setGeometry(frame);
    QTRY_COMPARE(readPlace(m_path), (WindowPlace{frame, false}));
    QWindow second;
    second.setFlag(Qt::FramelessWindowHint);
    const WindowMemory later(second, m_path);
    QCOMPARE(second.geometry(), frame);
}

void WindowMemoryTest::aWindowThatWasNeverMovedWritesNothing()
{
    {
        QWindow window;
        const WindowMemory memory(window, m_path);
    }
    QVERIFY(!QFile::exists(m_path));
}

void WindowMemoryTest::aPlaceThatWasJustTakenIsKeptAtTheEnd()
{
    QWindow window;
    {
        const WindowMemory memory(window, m_path);
        window.setGeometry(3, 4, 1200, 730);
    }
    QCOMPARE(readPlace(m_path), (WindowPlace{QRect(3, 4, 1200, 730), false}));
}

void WindowMemoryTest::aZoomedWindowRemembersWhereItWasBefore()
{
    const WindowPlace zoomed{frameOnScreen({}, {QGuiApplication::primaryScreen()->availableGeometry()}), true};
    QWindow window;
    const WindowMemory memory(window, m_path);
    window.show();
    window.showMaximized();
    QTRY_COMPARE(readPlace(m_path), zoomed);
    QWindow second;
    const WindowMemory later(second, m_path);
    QVERIFY(second.windowStates().testFlag(Qt::WindowMaximized));
}

void WindowMemoryTest::aMinimisedWindowIsNoPlace()
{
    QWindow window;
    {
        const WindowMemory memory(window, m_path);
        window.setWindowStates(Qt::WindowMinimized);
    }
    QVERIFY(!QFile::exists(m_path));
}

QTEST_MAIN(WindowMemoryTest)
#include "tst_windowmemory.moc"
