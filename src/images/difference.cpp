#include "difference.h"

#include <cstdlib>

namespace vexal {

namespace {

QImage atSize(const QImage &page, QSize size)
{
    const QImage plain = page.convertToFormat(QImage::Format_RGB32);
    return plain.size() == size ? plain : plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QImage pageDifference(const QImage &supplier, const QImage &ours)
{
    if (supplier.isNull() || ours.isNull())
        return {};
    const qint64 theirArea = qint64(supplier.width()) * supplier.height();
    const qint64 ourArea = qint64(ours.width()) * ours.height();
    const QSize size = theirArea >= ourArea ? supplier.size() : ours.size();
    const QImage a = atSize(supplier, size);
    const QImage b = atSize(ours, size);

    QImage difference(size, QImage::Format_RGB32);
    const int count = size.width() * 4;
    for (int y = 0; y < size.height(); ++y) {
        const uchar *theirs = a.constScanLine(y);
        const uchar *our = b.constScanLine(y);
        uchar *line = difference.scanLine(y);
        for (int i = 0; i < count; ++i)
            line[i] = uchar(std::abs(theirs[i] - our[i]));
        for (int i = 3; i < count; i += 4)
            line[i] = 0xff;
    }
    return difference;
}

} // namespace vexal
