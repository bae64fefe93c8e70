#pragma once

#include <QPointF>
#include <QQuickItem>
#include <QRect>

#include <optional>

namespace vexal {

/// A part of the window by which the pointer moves it or, with `edges`, draws these edges of it elsewhere. The desktop
/// does both where it can; without a window manager the window follows the pointer by itself. A window that fills its
/// screen has no edges.
class WindowHandle : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int edges READ edges WRITE setEdges NOTIFY edgesChanged FINAL)

public:
    explicit WindowHandle(QQuickItem *parent = nullptr);

    /// Qt::Edges; none: the handle moves the window.
    int edges() const { return m_edges; }
    void setEdges(int edges);

Q_SIGNALS:
    void edgesChanged();
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;

private:
    /// A press, and what the pointer has made of it so far.
    struct Hold
    {
        QPointF from; ///< Where on the desktop it was pressed.
        QRect frame;  ///< What the window was then.
        bool pulling = false;
    };

    bool desktopTakesOver();
    void pull(QPoint by);

    Qt::Edges m_edges;
    std::optional<Hold> m_hold;
};

/// The frame with its `edges` drawn so far, the opposite ones staying where they are; never smaller than `least`.
QRect resized(const QRect &frame, Qt::Edges edges, QPoint by, QSize least);

} // namespace vexal
