#include "printing.h"
#include "sheet.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal::sample;

namespace {

/// The modules of a barcode, read from its picture along a line through the bars.
QString readBars(const QImage &picture, double left, double module, int y)
{
    QString bars;
    for (int i = 0; i < 95; ++i)
        bars += qGray(picture.pixel(qFloor(left + (i + 0.5) * module), y)) < 128 ? u'1' : u'0';
    return bars;
}

Sheet sheetWithWords()
{
    Sheet sheet{{600, 300}, Qt::white, {}};
    sheet.add(u"text"_s,
              setLines({300, 100}, {Face::Schoolbook, 40, Qt::black}, {u"the little fox"_s, u"lit every lantern."_s}));
    return sheet;
}

} // namespace

class PaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBarcodeIsDrawnByTheStandard();
    void theCheckDigitBelongsToTheTwelve();
    void aWordIsSpelledOtherwiseInItsPlace();
    void whatIsPaintedLiesInItsPlace();
    void aClipBoundsAPlace();
    void aBuriedThingKeepsItsPlaceButDoesNotShow();
    void aTrimmedPageIsSmallerAndItsPlacesMove();
    void theDiceFallTheSameWayEveryTime();
    void pathDataReadsNumbersThatTouch();
};

void PaintTest::aBarcodeIsDrawnByTheStandard()
{
    QImage picture(600, 400, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        Canvas canvas(&picture);
        barcode(canvas, {60, 40}, 4, u"5901234123457"_s);
    }
    QCOMPARE(readBars(picture, 60, 4, 100), u"101"
                                            "0001011"
                                            "0100111"
                                            "0110011"
                                            "0010011"
                                            "0111101"
                                            "0011101"
                                            "01010"
                                            "1100110"
                                            "1101100"
                                            "1000010"
                                            "1011100"
                                            "1001110"
                                            "1000100"
                                            "101"_s);
}

void PaintTest::theCheckDigitBelongsToTheTwelve()
{
    QCOMPARE(checkDigit(u"590123412345"), u'7');
    QCOMPARE(checkDigit(u"400638133393"), u'1');
    QCOMPARE(checkDigit(u"000000000000"), u'0');
}

void PaintTest::aWordIsSpelledOtherwiseInItsPlace()
{
    const Print before = paint(sheetWithWords());
    Sheet sheet = sheetWithWords();
    sheet.respell(u"text"_s, u"every"_s, u"evry"_s);
    const Print after = paint(sheet);
    QCOMPARE(after.places.value(u"text:lit"_s), before.places.value(u"text:lit"_s));
    QCOMPARE(after.places.value(u"text:lantern"_s), before.places.value(u"text:lantern"_s));
    QVERIFY(qAbs(after.places.value(u"text:evry"_s).left() - before.places.value(u"text:every"_s).left()) < 1);
    QVERIFY(!after.places.contains(u"text:every"_s));
}

void PaintTest::whatIsPaintedLiesInItsPlace()
{
    const Print print = paint(sheetWithWords());
    QRect ink;
    for (int y = 0; y < print.image.height(); ++y)
        for (int x = 0; x < print.image.width(); ++x)
            if (qGray(print.image.pixel(x, y)) < 250)
                ink |= QRect(x, y, 1, 1);
    const QRectF place = print.places.value(u"text"_s);
    QVERIFY(place.toAlignedRect().contains(ink));
    QVERIFY(ink.adjusted(-2, -2, 2, 2).contains(place.toAlignedRect()));
    QCOMPARE(place, print.places.value(u"text/1"_s) | print.places.value(u"text/2"_s));
}

void PaintTest::aClipBoundsAPlace()
{
    Sheet sheet{{100, 100}, Qt::white, {}};
    sheet.add(u"disc"_s, [](Canvas &c) {
        const auto clip = c.clipped(box({0, 0, 40, 100}));
        c.fill(circle({50, 50}, 30), Qt::black);
    });
    QCOMPARE(paint(sheet).places.value(u"disc"_s), QRectF(20, 20, 20, 60));
}

void PaintTest::aBuriedThingKeepsItsPlaceButDoesNotShow()
{
    Sheet sheet{{100, 100}, Qt::white, {}};
    sheet.add(u"art"_s, [](Canvas &c) { c.fill(box({0, 0, 100, 100}), Qt::red); });
    sheet.add(u"line"_s, [](Canvas &c) { c.fill(box({10, 10, 50, 5}), Qt::black); });
    sheet.bury(u"line"_s, u"art"_s);
    const Print print = paint(sheet);
    QCOMPARE(print.image.pixelColor(20, 12), QColor(Qt::red));
    QCOMPARE(print.places.value(u"line"_s), QRectF(10, 10, 50, 5));
}

void PaintTest::aTrimmedPageIsSmallerAndItsPlacesMove()
{
    Sheet sheet{{100, 100}, Qt::white, {}};
    sheet.add(u"bar"_s, [](Canvas &c) { c.fill(box({20, 30, 90, 5}), Qt::black); });
    sheet.trim = QRect(10, 10, 80, 85);
    const Print print = paint(sheet);
    QCOMPARE(print.image.size(), QSize(80, 85));
    QCOMPARE(print.places.value(u"bar"_s), QRectF(10, 20, 70, 5));
}

void PaintTest::theDiceFallTheSameWayEveryTime()
{
    Dice one(7);
    Dice other(7);
    for (int i = 0; i < 1000; ++i) {
        const double thrown = one.between(-3, 5);
        QCOMPARE(thrown, other.between(-3, 5));
        QVERIFY(thrown >= -3 && thrown < 5);
    }
    QCOMPARE(Dice(1).below(1000), 566);
}

void PaintTest::pathDataReadsNumbersThatTouch()
{
    QCOMPARE(outline("M0 0 L10-5 20 0 H5 V-2.5 Z"_L1).boundingRect(), QRectF(0, -5, 20, 5));
}

QTEST_MAIN(PaintTest)
#include "paint_test.moc"
