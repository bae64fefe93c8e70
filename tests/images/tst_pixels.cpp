#include "difference.h"
#include "pictures.h"
#include "pixels.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::pictureBytes;

namespace {

Picture picture(QSize size, const QColor &colour = Qt::red)
{
    return *Picture::fromBytes(pictureBytes(size, colour));
}

QImage filled(QSize size, QRgb colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

} // namespace

class PixelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLevelIsTheShownSizeOrThePicturesOwn();
    void aLevelIsDecodedOnceForTwoWhoAsk();
    void aHeldLevelIsAnsweredAtOnce();
    void thinStrokesSurviveTheWayDown();
    void theBudgetIsKept();
    void whatIsShownIsNeverGivenUp();
    void whatWasWantedLastStays();
    void aContextThatIsGoneIsToldNothing();
    void whatIsShownIsDecodedBeforeWhatMayBe();
    void whatMayBeShownIsBegunWhenWhatIsShownIsMade();
    void whatNobodyWaitsForIsNotBegun();
    void whatBecomesUrgentIsMadeOnce();
    void theWorkersAreAwaitedAtTheEnd();
    void bytesThatAreNoPictureGiveNull();
    void equalPagesDifferNowhere();
    void theDifferenceIsTheDistanceOfEachChannel();
    void aSmallerPageIsBroughtToTheLargersSize();
    void nothingHasNoDifference();
    void theDifferenceOfTwoPicturesIsMadeByWorkers();
    void aDifferenceIsTakenAtFullSizeWhateverTheLevel();
    void aLevelThatIsMadeTwiceIsCountedOnce();
    void stepsAreHalvesThatAreNotSmallerThanWhatIsShown();
    void theLargestHeldLevelStandsIn();

private:
    QImage load(Pixels &pixels, const Picture &picture, QSize level)
    {
        QImage loaded;
        bool came = false;
        pixels.load(picture, level, Pixels::Urgency::Shown, this, [&](const QImage &image) {
            loaded = image;
            came = true;
        });
        return QTest::qWaitFor([&came] { return came; }) ? loaded : QImage();
    }
};

void PixelsTest::aLevelIsTheShownSizeOrThePicturesOwn()
{
    const Picture page = picture({200, 300});
    QCOMPARE(Pixels::levelFor(page, {100, 150}), QSize(100, 150));
    QCOMPARE(Pixels::levelFor(page, {200, 300}), QSize(200, 300));
    QCOMPARE(Pixels::levelFor(page, {1600, 2400}), QSize(200, 300));
    QCOMPARE(Pixels::levelFor(page, {0, 0}), QSize(1, 1));
}

void PixelsTest::aLevelIsDecodedOnceForTwoWhoAsk()
{
    Pixels pixels;
    const Picture page = picture({200, 300});
    QList<QImage> answers;
    for (int i = 0; i < 2; ++i)
        pixels.load(page, {100, 150}, Pixels::Urgency::Shown, this,
                    [&](const QImage &image) { answers.append(image); });
    QTRY_COMPARE(answers.size(), 2);
    QCOMPARE(answers[0].cacheKey(), answers[1].cacheKey());
    QCOMPARE(pixels.bytes(), 100 * 150 * 4);
}

void PixelsTest::aHeldLevelIsAnsweredAtOnce()
{
    Pixels pixels;
    const Picture page = picture({200, 300});
    QVERIFY(pixels.held(page, {100, 150}).isNull());
    QCOMPARE(load(pixels, page, {100, 150}).size(), QSize(100, 150));
    QVERIFY(!pixels.held(page, {100, 150}).isNull());
    bool came = false;
    pixels.load(page, {100, 150}, Pixels::Urgency::Ahead, this, [&](const QImage &) { came = true; });
    QVERIFY(came);
}

void PixelsTest::thinStrokesSurviveTheWayDown()
{
    // One black line of a pixel on white, at a quarter of the size: averaging leaves a grey of three quarters.
    QImage page(400, 400, QImage::Format_RGB32);
    page.fill(Qt::white);
    for (int y = 0; y < 400; ++y)
        page.setPixelColor(201, y, Qt::black);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && page.save(&buffer, "PNG"));
    const QImage small = Picture::fromBytes(bytes)->decoded({100, 100});
    QCOMPARE(small.size(), QSize(100, 100));
    int darkest = 255;
    for (int x = 0; x < 100; ++x)
        darkest = std::min(darkest, qGray(small.pixel(x, 50)));
    QVERIFY2(std::abs(darkest - 191) <= 2, qPrintable(QString::number(darkest)));
}

void PixelsTest::theBudgetIsKept()
{
    Pixels pixels(10 * 100 * 100 * 4);
    for (int i = 0; i < 30; ++i) {
        load(pixels, picture({100, 100}), {100, 100});
        QVERIFY(pixels.bytes() <= 10 * 100 * 100 * 4);
    }
    QCOMPARE(pixels.bytes(), 10 * 100 * 100 * 4);
}

void PixelsTest::whatIsShownIsNeverGivenUp()
{
    Pixels pixels(2 * 100 * 100 * 4);
    const Picture page = picture({100, 100});
    const QImage shown = load(pixels, page, {100, 100});
    for (int i = 0; i < 5; ++i)
        load(pixels, picture({100, 100}), {100, 100});
    QCOMPARE(pixels.held(page, {100, 100}).cacheKey(), shown.cacheKey());
}

void PixelsTest::whatWasWantedLastStays()
{
    Pixels pixels(2 * 100 * 100 * 4);
    const Picture first = picture({100, 100});
    const Picture second = picture({100, 100});
    load(pixels, first, {100, 100});
    load(pixels, second, {100, 100});
    QVERIFY(!pixels.held(first, {100, 100}).isNull());
    load(pixels, picture({100, 100}), {100, 100});
    QVERIFY(!pixels.held(first, {100, 100}).isNull());
    QVERIFY(pixels.held(second, {100, 100}).isNull());
}

void PixelsTest::aContextThatIsGoneIsToldNothing()
{
    Pixels pixels;
    auto leaving = std::make_unique<QObject>();
    bool told = false;
    pixels.load(picture({300, 300}), {100, 100}, Pixels::Urgency::Shown, leaving.get(),
                [&](const QImage &) { told = true; });
    leaving.reset();
    load(pixels, picture({300, 300}), {100, 100});
    QVERIFY(!told);
}

void PixelsTest::whatIsShownIsDecodedBeforeWhatMayBe()
{
    Pixels pixels;
    QList<int> order;
    QList<Picture> pictures;
    for (int i = 0; i < 12; ++i)
        pictures.append(picture({900, 900}));
    const Picture small = picture({100, 100});
    // More than a worker takes at once, so that a queue forms behind the first ones.
    for (int i = 0; i < 12; ++i)
        pixels.load(pictures[i], {800, 800}, Pixels::Urgency::Ahead, this,
                    [&order, i](const QImage &) { order.append(i); });
    pixels.load(small, {50, 50}, Pixels::Urgency::Shown, this, [&order](const QImage &) { order.append(100); });
    QTRY_COMPARE(order.size(), 13);
    QVERIFY2(order.indexOf(100) <= 8, qPrintable(QString::number(order.indexOf(100))));
}

void PixelsTest::whatMayBeShownIsBegunWhenWhatIsShownIsMade()
{
    Pixels pixels;
    QStringList order;
    const auto told = [&order](const QString &name) { return [&order, name](const QImage &) { order.append(name); }; };
    const QList<Picture> large{picture({2000, 2000}), picture({2000, 2000})};
    for (const Picture &each : large)
        pixels.load(each, {1900, 1900}, Pixels::Urgency::Shown, this, told(u"shown"_s));
    pixels.load(picture({10, 10}), {5, 5}, Pixels::Urgency::Ahead, this, told(u"next"_s));
    pixels.load(picture({10, 10}), {5, 5}, Pixels::Urgency::Ahead, this, told(u"previous"_s));
    QTRY_COMPARE(order, (QStringList{u"shown"_s, u"shown"_s, u"next"_s, u"previous"_s}));
}

void PixelsTest::whatNobodyWaitsForIsNotBegun()
{
    Pixels pixels;
    QList<Picture> pictures;
    for (int i = 0; i < 12; ++i)
        pictures.append(picture({900, 900}));
    auto leaving = std::make_unique<QObject>();
    for (const Picture &picture : pictures)
        pixels.load(picture, {800, 800}, Pixels::Urgency::Ahead, leaving.get(), [](const QImage &) {});
    leaving.reset();
    // The next who asks finds the worker free but for what it had begun.
    load(pixels, picture({100, 100}), {50, 50});
    const auto made = [&] {
        return std::count_if(pictures.cbegin(), pictures.cend(), [&](const Picture &picture) {
            return !pixels.held(picture, {800, 800}).isNull();
        });
    };
    QVERIFY2(made() <= 8, qPrintable(QString::number(made())));
}

void PixelsTest::whatBecomesUrgentIsMadeOnce()
{
    Pixels pixels;
    const Picture page = picture({900, 900});
    int told = 0;
    for (const auto urgency : {Pixels::Urgency::Ahead, Pixels::Urgency::Shown, Pixels::Urgency::Ahead})
        pixels.load(page, {800, 800}, urgency, this, [&told](const QImage &image) { told += image.isNull() ? 0 : 1; });
    QVERIFY(pixels.isBusy());
    QSignalSpy rested(&pixels, &Pixels::rested);
    QTRY_COMPARE(told, 3);
    QCOMPARE(rested.size(), 1);
    QCOMPARE(pixels.bytes(), 800 * 800 * 4);
}

void PixelsTest::theWorkersAreAwaitedAtTheEnd()
{
    int told = 0;
    {
        Pixels pixels;
        for (int i = 0; i < 8; ++i)
            pixels.load(picture({900, 900}), {800, 800}, Pixels::Urgency::Shown, this,
                        [&told](const QImage &) { ++told; });
    }
    QCoreApplication::processEvents();
    QCOMPARE(told, 0);
}

void PixelsTest::bytesThatAreNoPictureGiveNull()
{
    Pixels pixels;
    const auto broken = Picture::fromBytes(pictureBytes({200, 200}).left(80));
    QVERIFY(broken);
    QVERIFY(load(pixels, *broken, {100, 100}).isNull());
    QCOMPARE(pixels.bytes(), 0);
}

void PixelsTest::equalPagesDifferNowhere()
{
    const QImage page = QImage::fromData(pictureBytes({50, 60}, Qt::darkCyan));
    const QImage difference = pageDifference(page, page);
    QCOMPARE(difference, filled({50, 60}, qRgb(0, 0, 0)));
}

void PixelsTest::theDifferenceIsTheDistanceOfEachChannel()
{
    const QImage a = filled({3, 3}, qRgb(200, 10, 30));
    const QImage b = filled({3, 3}, qRgb(150, 60, 30));
    QCOMPARE(pageDifference(a, b), filled({3, 3}, qRgb(50, 50, 0)));
    QCOMPARE(pageDifference(b, a), filled({3, 3}, qRgb(50, 50, 0)));
}

void PixelsTest::aSmallerPageIsBroughtToTheLargersSize()
{
    QCOMPARE(pageDifference(filled({10, 10}, qRgb(9, 9, 9)), filled({30, 20}, qRgb(9, 9, 9))),
             filled({30, 20}, qRgb(0, 0, 0)));
    QCOMPARE(pageDifference(filled({30, 20}, qRgb(9, 9, 9)), filled({10, 10}, qRgb(4, 9, 9))),
             filled({30, 20}, qRgb(5, 0, 0)));
}

void PixelsTest::nothingHasNoDifference()
{
    QVERIFY(pageDifference({}, filled({3, 3}, 0)).isNull());
    QVERIFY(pageDifference(filled({3, 3}, 0), {}).isNull());
}

void PixelsTest::theDifferenceOfTwoPicturesIsMadeByWorkers()
{
    Pixels pixels;
    const Picture red = picture({60, 80}, QColor(200, 0, 0));
    const Picture blue = picture({60, 80}, QColor(0, 0, 100));
    QImage difference;
    pixels.load({red, blue}, {60, 80}, Pixels::Urgency::Shown, this, [&](const QImage &image) { difference = image; });
    QVERIFY(difference.isNull());
    QTRY_VERIFY(!difference.isNull());
    QCOMPARE(difference.pixel(30, 40), qRgb(200, 0, 100));
    QVERIFY(!pixels.held({red, blue}, {60, 80}).isNull());
    QVERIFY(pixels.held(red, {60, 80}).isNull());
}

void PixelsTest::aLevelThatIsMadeTwiceIsCountedOnce()
{
    Pixels pixels;
    const Source difference(picture({600, 600}), picture({600, 600}));
    int made = 0;
    const auto count = [&made](const QImage &) { ++made; };
    // The small one is made of the large one, which comes by itself as well.
    pixels.load(difference, {100, 100}, Pixels::Urgency::Shown, this, count);
    pixels.load(difference, {600, 600}, Pixels::Urgency::Shown, this, count);
    QTRY_COMPARE(made, 2);
    QCOMPARE(pixels.bytes(), (600 * 600 + 100 * 100) * 4);
}

void PixelsTest::aDifferenceIsTakenAtFullSizeWhateverTheLevel()
{
    // Black and white columns against white and black ones: alike when averaged, opposites pixel by pixel.
    const auto columns = [](int first) {
        QImage page(80, 80, QImage::Format_RGB32);
        for (int y = 0; y < 80; ++y) {
            for (int x = 0; x < 80; ++x)
                page.setPixel(x, y, x % 2 == first ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        page.save(&buffer, "PNG");
        return *Picture::fromBytes(bytes);
    };
    Pixels pixels;
    const Source pair(columns(0), columns(1));
    QImage difference;
    pixels.load(pair, {20, 20}, Pixels::Urgency::Shown, this, [&](const QImage &image) { difference = image; });
    QTRY_COMPARE(difference.size(), QSize(20, 20));
    QCOMPARE(difference.pixel(10, 10), qRgb(255, 255, 255));
    // It is held at its full size, too, for whoever looks closer.
    QCOMPARE(pixels.held(pair, {80, 80}).size(), QSize(80, 80));
}

void PixelsTest::stepsAreHalvesThatAreNotSmallerThanWhatIsShown()
{
    const Picture page = picture({400, 600});
    QCOMPARE(Pixels::steppedLevelFor(page, {401, 601}), QSize(400, 600));
    QCOMPARE(Pixels::steppedLevelFor(page, {201, 301}), QSize(400, 600));
    QCOMPARE(Pixels::steppedLevelFor(page, {200, 300}), QSize(200, 300));
    QCOMPARE(Pixels::steppedLevelFor(page, {60, 90}), QSize(100, 150));
    QCOMPARE(Pixels::steppedLevelFor(page, {0, 0}), QSize(1, 2));
}

void PixelsTest::theLargestHeldLevelStandsIn()
{
    Pixels pixels;
    const Picture page = picture({200, 300});
    QVERIFY(pixels.heldInstead(page).isNull());
    load(pixels, page, {50, 75});
    load(pixels, page, {100, 150});
    load(pixels, picture({200, 300}), {200, 300});
    QCOMPARE(pixels.heldInstead(page).size(), QSize(100, 150));
}

QTEST_GUILESS_MAIN(PixelsTest)
#include "tst_pixels.moc"
