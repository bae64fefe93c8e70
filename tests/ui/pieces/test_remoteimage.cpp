#include "pictures.h"
#include "screen.h"
#include "testclock.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray pictureQml = R"(
import QtQuick
import Vexal.Pieces
Rectangle {
    color: "white"
    RemoteImage {
        objectName: "picture"
        width: 100
        height: 100
    }
}
)";

constexpr QSize wide(5000, 20); ///< Wider than a tile, which ends at 4096.

// Of one colour up to where a tile ends, and of another from there.
QByteArray twoHalves(const QColor &left, const QColor &right)
{
    QImage image(wide, QImage::Format_RGB32);
    image.fill(left);
    QPainter(&image).fillRect(4096, 0, wide.width() - 4096, wide.height(), right);
    return test::bytesOf(image);
}

} // namespace

/// The item that shows the picture of a blob key, drawn in a real window.
class RemoteImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFittedPictureLiesInTheMiddle();
    void aFillingPictureIsCropped();
    void placesFollowFromTheSizes();
    void aPictureIsShownOnceItCame();
    void anotherKeyShowsNothingOfTheOld();
    void aLateAnswerForAnOlderKeyIsNotShown();
    void noKeyShowsNothing();
    void roundCornersLetTheGroundThrough();
    void aPictureShownLargerIsDecodedLarger();
    void anItemThatGoesWhileItsPictureComesLeavesNoTrace();
    void theDifferenceOfTwoKeysIsShown();
    void aStretchedPictureFillsTheItem();
    void aKnownPictureIsNeverAnEmptyFrame();
    void tilesCoverAPictureOnce();
    void aPictureOfSeveralTilesLiesPixelOnPixel();
    void aPictureOfSeveralTilesHasNoSeamWhenItIsEnlarged();
    void aDifferenceOfSeveralTilesLiesPixelOnPixel();

private:
    void show(Images::Fetch fetch)
    {
        m_screen = std::make_unique<Screen>(m_store, pictureQml, QSize(200, 200), std::move(fetch));
        m_picture = m_screen->window().rootObject()->findChild<RemoteImage *>(u"picture"_s);
    }
    static Images::Fetch always(const QByteArray &bytes)
    {
        return [bytes](const QString &, QObject *, const Images::Fetched &fetched) { fetched(bytes); };
    }
    void showEndOfTile(int width);
    QColor at(int x, int y) { return m_screen->window().grabWindow().pixelColor(x, y); }

    Store m_store{TestClock().clock()};
    std::unique_ptr<Screen> m_screen;
    RemoteImage *m_picture = nullptr;
};

void RemoteImageTest::aFittedPictureLiesInTheMiddle()
{
    show(always(test::pictureBytes({200, 100}, Qt::red)));
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::red));
    QCOMPARE(at(50, 10), QColor(Qt::white));
    QCOMPARE(at(50, 90), QColor(Qt::white));
}

void RemoteImageTest::aFillingPictureIsCropped()
{
    show(always(test::pictureBytes({200, 100}, Qt::red)));
    m_picture->setFill(true);
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 10), QColor(Qt::red));
    QCOMPARE(at(5, 50), QColor(Qt::red));
    QCOMPARE(at(110, 50), QColor(Qt::white));
}

void RemoteImageTest::placesFollowFromTheSizes()
{
    QCOMPARE(placed({200, 100}, {100, 100}, false), (Placement{QRectF(0, 0, 200, 100), QRectF(0, 25, 100, 50)}));
    QCOMPARE(placed({200, 100}, {100, 100}, true), (Placement{QRectF(50, 0, 100, 100), QRectF(0, 0, 100, 100)}));
    QCOMPARE(placed({100, 200}, {100, 100}, false), (Placement{QRectF(0, 0, 100, 200), QRectF(25, 0, 50, 100)}));
    QCOMPARE(placed({100, 200}, {100, 100}, true), (Placement{QRectF(0, 50, 100, 100), QRectF(0, 0, 100, 100)}));
}

void RemoteImageTest::aPictureIsShownOnceItCame()
{
    std::function<void()> answer;
    show([&answer](const QString &, QObject *, const Images::Fetched &fetched) {
        answer = [fetched] { fetched(test::pictureBytes({50, 50}, Qt::blue)); };
    });
    m_picture->setKey(u"a"_s);
    QVERIFY(!m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::white));
    answer();
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::blue));
}

void RemoteImageTest::anotherKeyShowsNothingOfTheOld()
{
    show([](const QString &key, QObject *, const Images::Fetched &fetched) {
        if (key == u"a"_s)
            fetched(test::pictureBytes({50, 50}, Qt::blue));
    });
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    m_picture->setKey(u"b"_s);
    QVERIFY(!m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::white));
    m_picture->setKey(u"a"_s);
    QVERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::blue));
}

void RemoteImageTest::aLateAnswerForAnOlderKeyIsNotShown()
{
    QHash<QString, std::function<void()>> answers;
    show([&answers](const QString &key, QObject *, const Images::Fetched &fetched) {
        const QColor colour = key == u"old"_s ? Qt::red : Qt::green;
        answers.insert(key, [fetched, colour] { fetched(test::pictureBytes({50, 50}, colour)); });
    });
    m_picture->setKey(u"old"_s);
    m_picture->setKey(u"new"_s);
    answers.value(u"new"_s)();
    QTRY_VERIFY(m_picture->hasPicture());
    answers.value(u"old"_s)();
    QTRY_VERIFY(m_screen->images().cached(u"old"_s));
    QCOMPARE(at(50, 50), QColor(Qt::green));
}

void RemoteImageTest::noKeyShowsNothing()
{
    show(always(test::pictureBytes({50, 50}, Qt::blue)));
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    m_picture->setKey({});
    QVERIFY(!m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(Qt::white));
}

void RemoteImageTest::roundCornersLetTheGroundThrough()
{
    show(always(test::pictureBytes({100, 100}, Qt::blue)));
    m_picture->setRadius(50);
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(2, 2), QColor(Qt::white));
    QCOMPARE(at(50, 50), QColor(Qt::blue));
}

void RemoteImageTest::aPictureShownLargerIsDecodedLarger()
{
    show(always(test::pictureBytes({800, 800}, Qt::blue)));
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    Pixels &pixels = m_screen->images().pixels();
    QCOMPARE(pixels.bytes(), 100 * 100 * 4);
    m_picture->setSize({180, 180});
    QTRY_COMPARE(pixels.bytes(), 100 * 100 * 4 + 180 * 180 * 4);
    QVERIFY(m_picture->hasPicture());
}

void RemoteImageTest::anItemThatGoesWhileItsPictureComesLeavesNoTrace()
{
    show(always(test::pictureBytes({800, 800}, Qt::blue)));
    m_picture->setKey(u"a"_s);
    delete m_picture;
    QTRY_VERIFY(m_screen->images().cached(u"a"_s));
    m_screen->window().grabWindow();
}

void RemoteImageTest::theDifferenceOfTwoKeysIsShown()
{
    show([](const QString &key, QObject *, const Images::Fetched &fetched) {
        fetched(test::pictureBytes({100, 100}, key == u"a"_s ? QColor(200, 40, 0) : QColor(150, 40, 0)));
    });
    m_picture->setDifference(u"b"_s);
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(50, 0, 0));
    m_picture->setDifference({});
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 50), QColor(200, 40, 0));
}

void RemoteImageTest::aStretchedPictureFillsTheItem()
{
    show(always(test::pictureBytes({200, 100}, Qt::red)));
    m_picture->setStretch(true);
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    QCOMPARE(at(50, 10), QColor(Qt::red));
    QCOMPARE(at(50, 90), QColor(Qt::red));
    QCOMPARE(m_picture->pixels(), QSizeF(200, 100));
}

void RemoteImageTest::aKnownPictureIsNeverAnEmptyFrame()
{
    show(always(test::pictureBytes({400, 400}, Qt::red)));
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
    m_picture->setKey({});
    m_picture->setSize({150, 150});
    // This size was never decoded: what is held of the picture stands in for it.
    m_picture->setKey(u"a"_s);
    QVERIFY(m_picture->hasPicture());
    QCOMPARE(at(120, 120), QColor(Qt::red));
    const auto picture = m_screen->images().cached(u"a"_s);
    QTRY_VERIFY(!m_screen->images().pixels().held(*picture, {150, 150}).isNull());
}

void RemoteImageTest::tilesCoverAPictureOnce()
{
    QCOMPARE(tilesOf({2480, 3508}), (QList<QRect>{{0, 0, 2480, 3508}}));
    QCOMPARE(tilesOf({4096, 4096}), (QList<QRect>{{0, 0, 4096, 4096}}));
    QCOMPARE(tilesOf({4097, 5000}),
             (QList<QRect>{{0, 0, 4096, 4096}, {4096, 0, 1, 4096}, {0, 4096, 4096, 904}, {4096, 4096, 1, 904}}));
}

/// Shows a picture as wide as that, with the pixel where its first tile ends in the middle of the window.
void RemoteImageTest::showEndOfTile(int width)
{
    m_picture->setStretch(true);
    m_picture->setSize(QSizeF(width, 100));
    m_picture->setX(100 - 4096.0 * width / wide.width());
    m_picture->setKey(u"a"_s);
    QTRY_VERIFY(m_picture->hasPicture());
}

void RemoteImageTest::aPictureOfSeveralTilesLiesPixelOnPixel()
{
    show(always(twoHalves(Qt::red, Qt::blue)));
    showEndOfTile(wide.width());
    const QImage frame = m_screen->window().grabWindow();
    for (int x = 0; x < 200; ++x)
        QCOMPARE(frame.pixelColor(x, 50), x < 100 ? QColor(Qt::red) : QColor(Qt::blue));
}

void RemoteImageTest::aPictureOfSeveralTilesHasNoSeamWhenItIsEnlarged()
{
    show(always(twoHalves(Qt::red, Qt::blue)));
    showEndOfTile(8 * wide.width());
    const QImage frame = m_screen->window().grabWindow();
    QCOMPARE(frame.pixelColor(90, 50), QColor(Qt::red));
    QCOMPARE(frame.pixelColor(110, 50), QColor(Qt::blue));
    // Red becomes blue, and nothing of what lies under it is seen between them.
    for (int x = 90; x < 110; ++x) {
        QCOMPARE(frame.pixelColor(x, 50).green(), 0);
        QVERIFY(frame.pixelColor(x + 1, 50).blue() >= frame.pixelColor(x, 50).blue());
    }
}

void RemoteImageTest::aDifferenceOfSeveralTilesLiesPixelOnPixel()
{
    show([](const QString &key, QObject *, const Images::Fetched &fetched) {
        fetched(key == u"a"_s ? twoHalves({200, 0, 0}, {90, 0, 0}) : twoHalves({150, 0, 0}, {90, 0, 0}));
    });
    m_picture->setDifference(u"b"_s);
    showEndOfTile(wide.width());
    const QImage frame = m_screen->window().grabWindow();
    for (int x = 0; x < 200; ++x)
        QCOMPARE(frame.pixelColor(x, 50), x < 100 ? QColor(50, 0, 0) : QColor(Qt::black));
}

QTEST_MAIN(RemoteImageTest)
#include "test_remoteimage.moc"
