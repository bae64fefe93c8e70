#include "difference.h"

#include <cstring>

namespace {

/// A block of a JPEG with halved colour: what changes in it may touch all of it.
constexpr int block = 16;
/// Of 255: less is noise.
constexpr int noise = 10;
constexpr int plain = 20;

} // namespace

Difference::Difference(const QImage &one, const QImage &other)
    : m_one(one.convertToFormat(QImage::Format_RGB32))
    , m_other(other.convertToFormat(QImage::Format_RGB32))
{
    Q_ASSERT(one.size() == other.size());
}

int Difference::seenIn(const QRectF &area) const
{
    const QRect part = pixels(area);
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += at(x, y) > plain ? 1 : 0;
    return count;
}

QPoint Difference::firstOutside(const QList<QRectF> &areas) const
{
    QList<QRect> known;
    for (const QRectF &area : areas)
        known.append(pixels(area).adjusted(-block, -block, block, block));
    const auto isKnown = [&known](QPoint at) {
        return std::any_of(known.begin(), known.end(), [at](const QRect &area) { return area.contains(at); });
    };
    for (int y = 0; y < m_one.height(); ++y) {
        if (std::memcmp(m_one.constScanLine(y), m_other.constScanLine(y), static_cast<size_t>(m_one.bytesPerLine())) ==
            0)
            continue;
        for (int x = 0; x < m_one.width(); ++x)
            if (at(x, y) > noise && !isKnown({x, y}))
                return {x, y};
    }
    return {-1, -1};
}

QRect Difference::pixels(const QRectF &area) const
{
    const QRectF scaled(area.x() * m_one.width(), area.y() * m_one.height(), area.width() * m_one.width(),
                        area.height() * m_one.height());
    return scaled.toAlignedRect() & m_one.rect();
}

int Difference::at(int x, int y) const
{
    const QRgb one = reinterpret_cast<const QRgb *>(m_one.constScanLine(y))[x];
    const QRgb other = reinterpret_cast<const QRgb *>(m_other.constScanLine(y))[x];
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}
