#include "profilephoto.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

namespace vexal::local {

bool isPhoto(const QByteArray &jpeg)
{
    constexpr int largest = 4096;
    QBuffer buffer;
    buffer.setData(jpeg);
    QImageReader reader(&buffer, "jpeg");
    const auto size = reader.size();
    return size.isValid() && size.width() <= largest && size.height() <= largest && !reader.read().isNull();
}

} // namespace vexal::local
