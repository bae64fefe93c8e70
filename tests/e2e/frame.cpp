#include "frame.h"

#include <QFile>
#include <QtEndian>

namespace vexal {

namespace {

/// What stands at the head of the file: 32-bit numbers, the larger end first.
enum HeadField { HeadSize = 0, Width = 4, Height = 5, BytesPerLine = 12, Colours = 19, HeadFields = 25 };
constexpr int bytesPerPixel = 4;
constexpr int bytesPerColour = 12;

} // namespace

QByteArray framePixels(const QString &file, const QRect &place)
{
    QFile frame(file);
    const uchar *bytes = frame.open(QIODevice::ReadOnly) ? frame.map(0, frame.size()) : nullptr;
    if (!bytes || frame.size() < HeadFields * 4)
        return {};
    const auto field = [bytes](HeadField at) { return int(qFromBigEndian<quint32>(bytes + at * 4)); };
    if (!QRect(0, 0, field(Width), field(Height)).contains(place))
        return {};
    const uchar *first = bytes + field(HeadSize) + field(Colours) * bytesPerColour;
    QByteArray pixels;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const uchar *line = first + qsizetype(y) * field(BytesPerLine) + place.left() * bytesPerPixel;
        pixels.append(reinterpret_cast<const char *>(line), qsizetype(place.width()) * bytesPerPixel);
    }
    return pixels;
}

} // namespace vexal
