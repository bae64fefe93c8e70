#include "windowhandle.h"

#include <QCursor>
#include <QQuickWindow>

#include <algorithm>

namespace vexal {

namespace {

constexpr qreal threshold = 4; // points that a pointer may tremble within a click

bool fillsScreen(const QWindow &window)
{
    return window.windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen);
}

Qt::CursorShape cursorOf(Qt::Edges edges)
{
    if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge))
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

QRect resized(const QRect &frame, Qt::Edges edges, QPoint by, QSize least)
{
    QRect now = frame;
    if (edges & Qt::LeftEdge)
        now.setLeft(std::min(frame.left() + by.x(), frame.right() - least.width() + 1));
    if (edges & Qt::RightEdge)
        now.setRight(std::max(frame.right() + by.x(), frame.left() + least.width() - 1));
    if (edges & Qt::TopEdge)
        now.setTop(std::min(frame.top() + by.y(), frame.bottom() - least.height() + 1));
    if (edges & Qt::BottomEdge)
        now.setBottom(std::max(frame.bottom() + by.y(), frame.top() + least.height() - 1));
    return now;
}

WindowHandle::WindowHandle(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void WindowHandle::setEdges(int edges)
{
    if (m_edges == Qt::Edges(edges))
        return;
    m_edges = Qt::Edges(edges);
    if (m_edges)
        setCursor(cursorOf(m_edges));
    else
        unsetCursor();
    Q_EMIT edgesChanged();
}

void WindowHandle::mousePressEvent(QMouseEvent *event)
{
    m_hold = Hold{event->globalPosition(), window()->geometry()};
    if (m_edges && fillsScreen(*window()))
        event->ignore();
}

void WindowHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_hold)
        return;
    const QPointF by = event->globalPosition() - m_hold->from;
    if (!m_hold->pulling) {
        if (by.manhattanLength() < threshold)
            return;
        m_hold->pulling = true;
        if (desktopTakesOver())
            return ungrabMouse();
    }
    pull(by.toPoint());
}

bool WindowHandle::desktopTakesOver()
{
    return m_edges ? window()->startSystemResize(m_edges) : window()->startSystemMove();
}

void WindowHandle::pull(QPoint by)
{
    if (m_edges)
        window()->setGeometry(resized(m_hold->frame, m_edges, by, window()->minimumSize()));
    else if (!fillsScreen(*window()))
        window()->setPosition(m_hold->frame.topLeft() + by);
}

void WindowHandle::mouseDoubleClickEvent(QMouseEvent *)
{
    m_hold.reset();
    Q_EMIT doubleClicked();
}

void WindowHandle::mouseReleaseEvent(QMouseEvent *)
{
    m_hold.reset();
}

void WindowHandle::mouseUngrabEvent()
{
    m_hold.reset();
}

} // namespace vexal
