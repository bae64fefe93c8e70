#pragma once

#include <QImage>

namespace vexal {

/// The difference of two pages, channel by channel and without a sign, opaque: black wherever they are the same. Pages
/// of different sizes are compared at the larger one's size. Null when either is null. Pages that nobody else holds are
/// not copied: at full size that takes longer than to compare them.
QImage pageDifference(QImage supplier, QImage ours);

} // namespace vexal
