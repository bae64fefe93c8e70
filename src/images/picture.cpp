#include "picture.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

// What a page or a photograph may come as. Formats that load other files, run through a plugin of the desktop, or move,
// are not among them.
constexpr std::array formats{"jpeg", "png", "webp", "tiff", "bmp"};

quint64 nextId()
{
    static std::atomic<quint64> last = 0;
    return ++last;
}

// Qt refuses pictures of more than 256 MB of pixels on its own; ours may be as large as mostPixels allows.
void allowOurLargest()
{
    static const bool done = [] {
        QImageReader::setAllocationLimit(int(mostPixels * 4 / 1'048'576) + 1);
        return true;
    }();
    Q_UNUSED(done)
}

bool allowed(const QByteArray &format)
{
    return std::find(formats.begin(), formats.end(), format) != formats.end();
}

QSize uprightSize(const QImageReader &reader)
{
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    return turned ? reader.size().transposed() : reader.size();
}

} // namespace

struct Picture::Data : QSharedData
{
    QString path; ///< Empty when the bytes are held.
    QByteArray bytes;
    QSize size;
    quint64 id = nextId();

    std::unique_ptr<QIODevice> device() const
    {
        if (!path.isEmpty())
            return std::make_unique<QFile>(path);
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(bytes);
        return buffer;
    }
};

Picture::Picture(QExplicitlySharedDataPointer<Data> data)
    : m_data(std::move(data))
{
}

Picture::Picture(const Picture &other) = default;
Picture &Picture::operator=(const Picture &other) = default;
Picture::~Picture() = default;

std::optional<Picture> Picture::opened(QExplicitlySharedDataPointer<Data> data)
{
    allowOurLargest();
    const auto device = data->device();
    if (!device->open(QIODevice::ReadOnly) || device->size() > mostBytes)
        return std::nullopt;
    QImageReader reader(device.get());
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead() || !allowed(reader.format()))
        return std::nullopt;
    const QSize size = uprightSize(reader);
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPixels)
        return std::nullopt;
    data->size = size;
    return Picture(std::move(data));
}

std::optional<Picture> Picture::fromFile(const QString &path)
{
    QExplicitlySharedDataPointer<Data> data(new Data);
    data->path = path;
    return opened(std::move(data));
}

std::optional<Picture> Picture::fromBytes(const QByteArray &bytes)
{
    QExplicitlySharedDataPointer<Data> data(new Data);
    data->bytes = bytes;
    return opened(std::move(data));
}

QSize Picture::size() const
{
    return m_data->size;
}

quint64 Picture::id() const
{
    return m_data->id;
}

QImage Picture::decoded(QSize level) const
{
    const auto device = m_data->device();
    if (!device->open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(device.get());
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage whole = reader.read();
    // A file that was replaced by another in the meantime is not this picture any more.
    if (whole.isNull() || whole.size() != m_data->size)
        return {};
    const bool opaque = !whole.hasAlphaChannel();
    QImage plain = whole.convertToFormat(opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (level.width() >= plain.width() || level.height() >= plain.height())
        return plain;
    return plain.scaled(level, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace vexal
