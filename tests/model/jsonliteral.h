#pragma once

#include <QByteArray>

namespace vexal {

/// JSON in a test, with apostrophes for quotes: "{'open':1}"_json.
inline QByteArray operator""_json(const char *text, size_t size)
{
    return QByteArray(text, qsizetype(size)).replace('\'', '"');
}

} // namespace vexal
