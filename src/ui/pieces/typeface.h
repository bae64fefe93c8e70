#pragma once

#include <QFont>

class QGuiApplication;

namespace vexal {
/// Whose typeface the window speaks in.
enum class Typeface {
    Desktops, ///< The desktop's own, where the desktop names one; else ours.
    Ours,     ///< The one that the program carries, so that a photograph looks the same on every machine.
};

/// Makes the typeface the application's font. Call it once, before the first window.
void applyTypeface(QGuiApplication &application, Typeface typeface);

/// The application's typeface at `size` points of the screen. Qt sets text in whole points only, so 11.5 becomes 12.
QFont face(qreal size, QFont::Weight weight = QFont::Normal, qreal tracking = 0);
} // namespace vexal
