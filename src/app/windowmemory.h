#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

#include <optional>

class QWindow;

namespace vexal {

/// Where a window stands, in points of the desktop.
struct WindowPlace
{
    QRect frame;         ///< Where it stands while it is not zoomed.
    bool zoomed = false; ///< It fills its screen.
    bool operator==(const WindowPlace &) const = default;
};

/// How large the window is the first time.
inline constexpr QSize standardSize(1500, 940);

/// The least size of the window on a screen that has so much room: what the board needs, or all there is.
QSize leastSize(QSize room);

/// The frame nearest to the `wanted` one that lies wholly on one of the screens, of which the first is the main one.
/// Without a wanted frame, or with one that no screen shows, the middle of the main screen.
QRect frameOnScreen(const std::optional<QRect> &wanted, const QList<QRect> &screens);

/// The place that the file at the path holds; none when it cannot be read for one.
std::optional<WindowPlace> readPlace(const QString &path);
void writePlace(const QString &path, const WindowPlace &place);

/// Brings a window back to where it last stood, and remembers where it goes from there.
class WindowMemory : public QObject
{
public:
    /// The window takes its place at once: call it before the window is shown. The file is written a moment after each
    /// change.
    WindowMemory(QWindow &window, const QString &path);
    ~WindowMemory() override;

private:
    void restore();
    void watch();
    void note();

    QWindow &m_window;
    QString m_path;
    QTimer m_still; ///< Runs until the window has not moved for a moment.
    WindowPlace m_place;
};

} // namespace vexal
