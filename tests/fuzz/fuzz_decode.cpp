#include "decode.h"
#include "encode.h"
#include "wellformed.h"

#include <cstdlib>

using namespace vexal;

namespace {

void require(bool promise)
{
    if (!promise)
        std::abort();
}

bool isDocument(QByteArrayView bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes = bytes.sliced(3);
    return bytes.isValidUtf8() && isWellFormed({bytes.data(), size_t(bytes.size())});
}

/// Whatever the bytes are, they are refused with a reason, or they are a whole document and their record survives being
/// written and read again.
template <Record R>
void keepsItsPromises(const QByteArray &bytes)
{
    const Decoded<R> decoded = decode<R>(bytes);
    require(bool(decoded) == decoded.error.reason.isEmpty());
    if (!decoded)
        return;
    require(isDocument(bytes));
    const Decoded<R> again = decode<R>(encode(*decoded));
    require(again && *again == *decoded);
    require(std::hash<R>()(*again) == std::hash<R>()(*decoded));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    keepsItsPromises<BoardState>(bytes);
    keepsItsPromises<FileDetail>(bytes);
    keepsItsPromises<Sample>(bytes);
    keepsItsPromises<VersionInfo>(bytes);
    return 0;
}
