#include "picture.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

// What a page or a photograph may come as, by the bytes it begins with; empty for anything else. Formats that load
// other files, run through a plugin of the desktop, or move, are not among them. Known before Qt is asked, which would
// load every plugin that it has to find out.
QByteArray formatOf(QIODevice &device)
{
    const QByteArray head = device.peek(12);
    if (head.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (head.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (head.startsWith("RIFF") && head.endsWith("WEBP"))
        return "webp";
    if (head.startsWith(QByteArrayView("II*\0", 4)) || head.startsWith(QByteArrayView("MM\0*", 4)))
        return "tiff";
    return head.startsWith("BM") ? "bmp" : "";
}

// Has the reader take the device for that format, and for no other.
void readAs(QImageReader &reader, QIODevice &device, const QByteArray &format)
{
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(format);
    reader.setDevice(&device);
}

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

bool isTurned(const QImageReader &reader)
{
    return reader.transformation() & QImageIOHandler::TransformationRotate90;
}

QSize uprightSize(const QImageReader &reader)
{
    return isTurned(reader) ? reader.size().transposed() : reader.size();
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
    const QByteArray format = formatOf(*device);
    if (format.isEmpty())
        return std::nullopt;
    QImageReader reader;
    readAs(reader, *device, format);
    if (!reader.canRead())
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
    QImageReader reader;
    const QByteArray format = formatOf(*device);
    readAs(reader, *device, format);
    reader.setAutoTransform(true);
    // A file that was replaced by another in the meantime is not this picture any more.
    if (uprightSize(reader) != m_data->size)
        return {};
    // The one format that is read faster when less of it is wanted: halves of its size cost next to nothing.
    if (format == "jpeg" && 2 * level.width() <= m_data->size.width() && 2 * level.height() <= m_data->size.height())
        reader.setScaledSize(isTurned(reader) ? level.transposed() : level);
    const QImage whole = reader.read();
    if (whole.isNull())
        return {};
    const bool opaque = !whole.hasAlphaChannel();
    QImage plain = whole.convertToFormat(opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (level.width() >= plain.width() || level.height() >= plain.height())
        return plain;
    return plain.scaled(level, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace vexal
