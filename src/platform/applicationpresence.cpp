#include "applicationpresence.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace vexal {

bool ApplicationPresence::seen() const
{
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
        return false;
    const auto windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [](const QWindow *window) {
        return window->isVisible() && window->isExposed() && !window->windowStates().testFlag(Qt::WindowMinimized);
    });
}

} // namespace vexal
