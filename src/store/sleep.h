#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

namespace vexal {

/// Waits for so long, then calls `awake`, unless `context` has gone by then. Handed in, so that tests need not wait.
using Sleep = std::function<void(std::chrono::milliseconds pause, QObject *context, std::function<void()> awake)>;

/// Waits by the computer's own clock.
inline void sleepForReal(std::chrono::milliseconds pause, QObject *context, std::function<void()> awake)
{
    QTimer::singleShot(pause, context, std::move(awake));
}

} // namespace vexal
