#pragma once

#include "board.h"

#include <QString>

/// A board small enough to know by heart.
///
/// Mira, Teo. File "f1" (new, rev 4): two pages, findings "a" (high, open, page 0), "b" (low, open, page 1), "x"
/// (expected), note "n1" on page 0. File "f2" (reviewed): nothing found. Report "r1" on "f1" without its PDF. Events 1
/// to 3. In the inbox "f3" (from Pellow Cartons, one high finding), then "f4". The newest time is `tinyNewest`.
namespace vexal {

constexpr double tinyNewest = 1'700'000'000'000;

Sample tinySample();

/// A file as the board shows it: its pages come with its detail.
FileItem withoutPages(FileItem file);

/// Writes it, with its pictures, into \a folder.
void writeTinySeed(const QString &folder);

} // namespace vexal
