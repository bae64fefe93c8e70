#pragma once

#include "board.h"

#include <QByteArray>

namespace vexal {

/// \a record as compact JSON in UTF-8, which decode() reads back as an equal record; every record of board.h can be
/// written. What is absent is left out, never null. Of a double the shortest digits are written that read back as the
/// same one. JSON has no infinities and no NaN: they are written as null, which no field takes for a number. A
/// surrogate without its other half is written as a question mark.
template <Record R>
QByteArray encode(const R &record);

} // namespace vexal
