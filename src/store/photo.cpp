#include "photo.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr QSize photoSize(512, 512);
constexpr int quality = 85;

bool isPhotoFormat(const QByteArray &format)
{
    return format == "jpeg" || format == "png" || format == "heic" || format == "heif";
}

int shorterSide(QSize size)
{
    return std::min(size.width(), size.height());
}

/// The size to read a picture of `size` at: a camera's comes smaller, which takes a fraction of the memory and time,
/// but large enough to be scaled down once more.
QSize readSize(QSize size)
{
    constexpr int enough = 2 * photoSize.width();
    return shorterSide(size) <= enough ? size : size.scaled(enough, enough, Qt::KeepAspectRatioByExpanding);
}

QImage read(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!isPhotoFormat(reader.format()))
        return {};
    reader.setAutoTransform(true);
    reader.setQuality(100); // Of the scaling.
    if (const QSize size = reader.size(); size.isValid())
        reader.setScaledSize(readSize(size));
    return reader.read();
}

QImage middleSquare(const QImage &picture)
{
    const int side = shorterSide(picture.size());
    return picture.copy((picture.width() - side) / 2, (picture.height() - side) / 2, side, side);
}

/// The pixels alone, on white where they let something through: whatever else the picture carried stays behind.
QImage bare(const QImage &picture)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

} // namespace

QStringList photoPatterns()
{
    QStringList patterns{u"*.jpg"_s, u"*.jpeg"_s, u"*.png"_s};
    if (QImageReader::supportedImageFormats().contains("heic"))
        patterns.append(u"*.heic"_s);
    return patterns;
}

std::optional<QByteArray> profilePhoto(const QString &path)
{
    QImage picture = read(path);
    if (picture.isNull())
        return {};
    if (picture.colorSpace().isValid())
        picture.convertToColorSpace(QColorSpace::SRgb);
    const QImage photo = middleSquare(picture).scaled(photoSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    return writer.write(bare(photo)) ? std::optional(bytes) : std::nullopt;
}

} // namespace vexal
