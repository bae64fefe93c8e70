#include "photo.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// Green in the middle square, red before it, blue to the right of it.
QImage striped(QSize size)
{
    const int side = std::min(size.width(), size.height());
    const QRect middle((size.width() - side) / 2, (size.height() - side) / 2, side, side);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(middle, Qt::green);
    painter.fillRect(QRect(middle.topRight() + QPoint(1, 0), middle.size()), Qt::blue);
    return image;
}

/// Upper half green, lower half blue.
QImage halved(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter(&image).fillRect(0, size.height() / 2, size.width(), size.height(), Qt::blue);
    return image;
}

bool isNear(QColor a, QColor b)
{
    const auto apart = [](int x, int y) { return std::abs(x - y) > 12; };
    return !apart(a.red(), b.red()) && !apart(a.green(), b.green()) && !apart(a.blue(), b.blue());
}

QByteArray jpeg(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter(&buffer, "jpeg").write(image);
    return bytes;
}

/// The JPEG as a camera writes it that was held in the way that `orientation` stands for.
QByteArray turned(const QByteArray &bytes, char orientation)
{
    QByteArray exif("Exif\0\0MM\0\x2a\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0?\0\0\0\0\0\0", 32);
    exif[25] = orientation;
    QByteArray segment("\xff\xe1\0\0", 4);
    qToBigEndian(quint16(exif.size() + 2), segment.data() + 2);
    return bytes.first(2) + segment + exif + bytes.sliced(2);
}

/// The kinds of the segments of a JPEG before its pixels.
QByteArray segments(const QByteArray &bytes)
{
    QByteArray kinds;
    qsizetype at = 2;
    while (at + 4 <= bytes.size() && bytes[at + 1] != '\xda') {
        kinds += bytes[at + 1];
        at += 2 + qFromBigEndian<quint16>(bytes.constData() + at + 2);
    }
    return kinds;
}

} // namespace

/// Photos that people make their own.
class TestPhoto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePhotoIsTheMiddleSquare_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("wide") << QSize(3000, 2000);
        QTest::newRow("high") << QSize(2000, 3000);
        QTest::newRow("square") << QSize(512, 512);
        QTest::newRow("small") << QSize(60, 40);
        QTest::newRow("of today's cameras") << QSize(8064, 6048);
    }

    void thePhotoIsTheMiddleSquare()
    {
        QFETCH(QSize, size);
        const QImage photo = photoOf(striped(size), size.width() < 1000 ? "png" : "jpeg");
        QCOMPARE(photo.size(), QSize(512, 512));
        for (const QPoint at : {QPoint(8, 8), QPoint(503, 8), QPoint(8, 503), QPoint(503, 503), QPoint(256, 256)})
            QVERIFY2(isNear(photo.pixelColor(at), Qt::green), qPrintable(photo.pixelColor(at).name()));
    }

    void aPngWillDo() { QCOMPARE(photoOf(striped({300, 200}), "png").size(), QSize(512, 512)); }

    void whatIsTransparentIsWhite()
    {
        QImage clear(600, 600, QImage::Format_ARGB32);
        clear.fill(Qt::transparent);
        QVERIFY(isNear(photoOf(clear, "png").pixelColor(256, 256), Qt::white));
    }

    void theCamerasOrientationIsHonoured_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QPoint>("green");
        QTest::addColumn<QPoint>("blue");
        const QPoint top(256, 40);
        const QPoint bottom(256, 470);
        const QPoint left(40, 256);
        const QPoint right(470, 256);
        QTest::newRow("upright") << 1 << top << bottom;
        QTest::newRow("on its head") << 3 << bottom << top;
        QTest::newRow("turned right") << 6 << right << left;
        QTest::newRow("turned left") << 8 << left << right;
    }

    void theCamerasOrientationIsHonoured()
    {
        QFETCH(int, orientation);
        QFETCH(QPoint, green);
        QFETCH(QPoint, blue);
        const QImage photo = photoOf(turned(jpeg(halved({3000, 2000})), char(orientation)));
        QVERIFY(isNear(photo.pixelColor(green), Qt::green));
        QVERIFY(isNear(photo.pixelColor(blue), Qt::blue));
    }

    void nothingElseIsTold()
    {
        QImage image = striped({3000, 2000});
        image.setColorSpace(QColorSpace::DisplayP3);
        image.setText(u"Description"_s, u"At home"_s);
        const QByteArray source = turned(jpeg(image), 1);
        QVERIFY(segments(source).contains('\xe1')); // the camera's words
        QVERIFY(segments(source).contains('\xe2')); // the colour profile
        QVERIFY(segments(source).contains('\xfe')); // a comment
        const QByteArray kinds = segments(bytesOf(source).value_or(QByteArray()));
        QVERIFY(!kinds.isEmpty());
        for (const char kind : kinds)
            QVERIFY2(kind == '\xe0' || (quint8(kind) < 0xe0), kinds.toHex(' ').constData());
    }

    void anotherColourSpaceIsTranslated()
    {
        QImage image(600, 600, QImage::Format_RGB32);
        image.fill(QColor(200, 100, 50));
        image.setColorSpace(QColorSpace::DisplayP3);
        const QColor translated = image.convertedToColorSpace(QColorSpace::SRgb).pixelColor(0, 0);
        QVERIFY(!isNear(translated, QColor(200, 100, 50)));
        QVERIFY(isNear(photoOf(image, "png").pixelColor(256, 256), translated));
    }

    void theQualityIsFine()
    {
        const QByteArray sent = bytesOf(jpeg(striped({3000, 2000}))).value_or(QByteArray());
        QBuffer buffer;
        buffer.setData(sent);
        QImageReader reader(&buffer);
        reader.read();
        QImage again(512, 512, QImage::Format_RGB32);
        again.fill(Qt::gray);
        QByteArray expected;
        QBuffer out(&expected);
        QImageWriter writer(&out, "jpeg");
        writer.setQuality(85);
        writer.write(again);
        const auto tables = [](const QByteArray &bytes) { return bytes.sliced(bytes.indexOf("\xff\xdb"), 134); };
        QCOMPARE(tables(sent), tables(expected));
    }

    void noPictureIsNoPhoto_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("words") << QByteArray("not a picture");
        QTest::newRow("a head alone") << jpeg(striped({30, 20})).first(40);
        QTest::newRow("another kind of picture") << QByteArray("P6 1 1 255\n\x01\x02\x03");
    }

    void noPictureIsNoPhoto()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(bytesOf(bytes), std::nullopt);
        QCOMPARE(profilePhoto(m_folder.filePath(u"missing"_s)), std::nullopt);
    }

    void whatThisSystemReadsCanBePicked()
    {
        const QStringList patterns = photoPatterns();
        QCOMPARE(patterns.first(3), (QStringList{u"*.jpg"_s, u"*.jpeg"_s, u"*.png"_s}));
        QCOMPARE(patterns.contains(u"*.heic"_s), QImageReader::supportedImageFormats().contains("heic"));
    }

private:
    std::optional<QByteArray> bytesOf(const QByteArray &source)
    {
        const QString path = m_folder.filePath(u"photo"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write(source);
        file.close();
        return profilePhoto(path);
    }

    QImage photoOf(const QByteArray &source)
    {
        return QImage::fromData(bytesOf(source).value_or(QByteArray()), "jpeg");
    }

    QImage photoOf(const QImage &source, const char *format)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        source.save(&buffer, format, 95);
        return photoOf(bytes);
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestPhoto)
#include "tst_photo.moc"
