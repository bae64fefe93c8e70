#pragma once

#include "decode.h"
#include "request.h"

#include <QDebug>

namespace vexal {

/// The record that an answer to `path` holds. None when it does not decode, which the log is told. May be
/// called in any thread.
template <Record R>
std::optional<R> documentIn(const Response &answer, const QString &path)
{
    Decoded<R> decoded = decode<R>(answer.body);
    if (!decoded)
        qWarning("%s: %s", qUtf8Printable(path), qUtf8Printable(decoded.error.text()));
    return std::move(decoded.record);
}

} // namespace vexal
