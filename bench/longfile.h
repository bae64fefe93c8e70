#pragma once

#include "board.h"

#include <QString>

namespace vexal::bench {

/// The two pages that every page of the long file is: A4 at 300 dots an inch, a few words apart. File names in its
/// folder.
inline constexpr auto supplierPage = "supplier.jpg";
inline constexpr auto ourPage = "ours.jpg";

/// A board of one file with so many pages, each with pictures of its own, and so many findings on the first. Its
/// pictures are put into the folder.
Sample longFile(const QString &folder, int pages, int findings);

} // namespace vexal::bench
