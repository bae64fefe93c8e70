#include "following.h"

#include "appearance.h"
#include "desktoplook.h"

#include <QEvent>
#include <QWindow>

namespace vexal {

namespace {

/// Hears when a window comes into sight and goes out of it, for which there is no signal.
class Sight : public QObject
{
public:
    Sight(Appearance &appearance, QWindow &window)
        : QObject(&appearance)
        , m_appearance(appearance)
        , m_window(window)
    {
        window.installEventFilter(this);
        connect(&window, &QWindow::windowStateChanged, this, &Sight::look);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Expose)
            look();
        return false;
    }

private:
    void look()
    {
        m_appearance.setSeen(m_window.isExposed() && !m_window.windowStates().testFlag(Qt::WindowMinimized));
    }

    Appearance &m_appearance;
    QWindow &m_window;
};

} // namespace

void followLook(Appearance &appearance, const DesktopLook &look)
{
    const auto wear = [&appearance, &look] {
        const Look now = look.look();
        appearance.setDark(now.dark);
        appearance.setContrast(now.contrast);
        appearance.setReducedMotion(now.reducedMotion);
    };
    QObject::connect(&look, &DesktopLook::changed, &appearance, wear);
    wear();
}

void followWindow(Appearance &appearance, QWindow &window)
{
    new Sight(appearance, window); // The appearance owns it.
}

} // namespace vexal
