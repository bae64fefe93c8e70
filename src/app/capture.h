#pragma once

#include <QString>

namespace vexal {

/// How a capture ends the program, for the script that asked for it.
enum class CaptureStatus {
    Written = 0,  ///< Also when there was nothing to encode, or the path could not be written (said on standard error).
    NoWindow = 2, ///< No window, or one without content.
    NoBitmap = 3, ///< The window could not be drawn.
};

/// Draws the first visible window (the first at all when none is visible) and writes it to the path as PNG, whatever
/// the path's extension, replacing any file there.
CaptureStatus capture(const QString &path);

} // namespace vexal
