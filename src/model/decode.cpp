#include "decode.h"

#include "recordreader.h"

namespace vexal {

using namespace Qt::StringLiterals;

QString DecodeError::text() const
{
    return path.isEmpty() ? reason : path + u": "_s + reason;
}

template <Record R>
Decoded<R> decode(QByteArray bytes)
{
    Decoded<R> decoded;
    RecordReader reader;
    if (!reader.readDocument(std::move(bytes), decoded.record.emplace())) {
        decoded.record.reset();
        decoded.error = reader.error();
    }
    return decoded;
}

#define VEXAL_DECODE(R) template Decoded<R> decode<R>(QByteArray bytes);
VEXAL_EACH_RECORD(VEXAL_DECODE)
#undef VEXAL_DECODE

} // namespace vexal
