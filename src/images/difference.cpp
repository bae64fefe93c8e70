#include "difference.h"

#include <algorithm>
#include <utility>

namespace vexal {

namespace {

QImage atSize(QImage page, QSize size)
{
    page.convertTo(QImage::Format_RGB32);
    return page.size() == size ? page : page.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Leaves in each channel of the pixels how far it is from the other's. Written so that the compiler takes many at once.
void subtract(uchar *line, const uchar *other, int pixels)
{
    for (int i = 0; i < pixels * 4; ++i)
        line[i] = uchar(std::max(line[i], other[i]) - std::min(line[i], other[i]));
    auto *whole = reinterpret_cast<QRgb *>(line);
    for (int i = 0; i < pixels; ++i)
        whole[i] |= 0xff000000;
}

} // namespace

QImage pageDifference(QImage supplier, QImage ours)
{
    if (supplier.isNull() || ours.isNull())
        return {};
    const qint64 theirArea = qint64(supplier.width()) * supplier.height();
    const qint64 ourArea = qint64(ours.width()) * ours.height();
    const QSize size = theirArea >= ourArea ? supplier.size() : ours.size();
    QImage difference = atSize(std::move(supplier), size);
    const QImage other = atSize(std::move(ours), size);
    for (int y = 0; y < size.height(); ++y)
        subtract(difference.scanLine(y), other.constScanLine(y), size.width());
    return difference;
}

} // namespace vexal
