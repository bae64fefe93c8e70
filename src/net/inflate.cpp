#include "inflate.h"

#include <algorithm>
#include <memory>

#include <zlib.h>

namespace vexal {

namespace {

constexpr qint64 step = 256LL * 1024;

struct End
{
    void operator()(z_stream *stream) const { inflateEnd(stream); }
};

} // namespace

std::optional<QByteArray> inflated(const QByteArray &packed, qint64 limit)
{
    constexpr int gzipFormat = 15 + 16;
    z_stream stream{};
    if (inflateInit2(&stream, gzipFormat) != Z_OK)
        return std::nullopt;
    const std::unique_ptr<z_stream, End> guard(&stream);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.data()));
    stream.avail_in = uInt(packed.size());

    QByteArray plain;
    qint64 size = 0;
    while (size <= limit) {
        plain.resize(std::max<qint64>(plain.size(), size + step));
        stream.next_out = reinterpret_cast<Bytef *>(plain.data() + size);
        stream.avail_out = uInt(plain.size() - size);
        const int outcome = inflate(&stream, Z_NO_FLUSH);
        size = plain.size() - stream.avail_out;
        if (outcome == Z_STREAM_END && stream.avail_in == 0) {
            plain.resize(size);
            return size <= limit ? std::optional(std::move(plain)) : std::nullopt;
        }
        // One stream may follow another.
        if (outcome == Z_STREAM_END && inflateReset(&stream) != Z_OK)
            return std::nullopt;
        if (outcome != Z_OK && outcome != Z_STREAM_END)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace vexal
