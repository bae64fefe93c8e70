#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>

/// Pictures for tests.
namespace vexal::test {

/// The bytes of a picture as a file of the format ("PNG", "JPG").
inline QByteArray bytesOf(const QImage &image, const char *format = "PNG")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 90);
    return bytes;
}

/// The bytes of a picture of one colour with a darker frame.
inline QByteArray pictureBytes(QSize size, const QColor &colour = Qt::red, const char *format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    for (int x = 0; x < size.width(); ++x) {
        image.setPixelColor(x, 0, colour.darker());
        image.setPixelColor(x, size.height() - 1, colour.darker());
    }
    return bytesOf(image, format);
}

} // namespace vexal::test
