#pragma once

#include "moment.h"

#include <QByteArray>
#include <QQuickItem>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

/// Looks into a window from outside, frame by frame.
namespace vexal::bench {

/// The first item, from the given one down, of a QML type or with an object name; null when there is none.
QQuickItem *findItem(QQuickItem *from, const QByteArray &name);

/// Lets the window draw a frame, and waits for it.
void drawFrame(QQuickWindow &window);

/// Goes on with what is to be done, for so many milliseconds.
void goOnFor(int milliseconds);

/// Milliseconds of processor time, of all threads, for each of many frames with a change before it. What began before
/// gets time to end.
template <typename Change>
double spentOnFrame(QQuickWindow &window, Change change)
{
    constexpr int settling = 900; // milliseconds
    constexpr int frames = 300;
    goOnFor(settling);
    const double before = processorSeconds();
    for (int i = 0; i < frames; ++i) {
        change();
        drawFrame(window);
    }
    return (processorSeconds() - before) * 1000 / frames;
}

/// The same for a list that is scrolled by a line with each frame.
double spentOnScrolledFrame(QQuickWindow &window, QQuickItem &list);

} // namespace vexal::bench
