#pragma once

#include <QImage>

namespace vexal {

/// The difference of two pages, channel by channel and without a sign, opaque: black wherever they are the same. Pages
/// of different sizes are compared at the larger one's size. Null when either is null.
QImage pageDifference(const QImage &supplier, const QImage &ours);

} // namespace vexal
