#pragma once

#include <QImage>
#include <QMap>
#include <QPainter>

#include "shape.h"

namespace vexal::sample {

/// Where the named things of a page came to lie, in pixels of the page.
using Places = QMap<QString, QRectF>;

/// What a page is painted on. It fills and strokes outlines, and remembers where everything that has a name was
/// painted.
class Canvas
{
public:
    explicit Canvas(QImage *page);

    /// Ends a name, a place or a clip when it goes.
    class [[nodiscard]] Scope
    {
    public:
        explicit Scope(Canvas *canvas)
            : m_canvas(canvas)
        {
        }
        ~Scope() { m_canvas->leave(); }
        Q_DISABLE_COPY_MOVE(Scope)

    private:
        Canvas *m_canvas;
    };

    /// Everything painted meanwhile belongs to `name` (and to the names around it).
    Scope named(const QString &name);
    /// Everything painted meanwhile has its origin at `at`, is so many times as large, and turned clockwise.
    Scope placed(QPointF at, double scale = 1, double degrees = 0);
    /// As `placed`, seen in a mirror.
    Scope mirrored(QPointF at, double scale = 1, double degrees = 0);
    /// Nothing painted meanwhile shows outside `edge`.
    Scope clipped(const QPainterPath &edge);

    void fill(const QPainterPath &shape, const QBrush &brush);
    void stroke(const QPainterPath &line, const QColor &colour, double width, Qt::PenCapStyle cap = Qt::RoundCap);
    void stroke(const QPainterPath &line, const QPen &pen);

    const Places &places() const { return m_places; }

private:
    void enter(const QString &name);
    void leave();
    void touch(QRectF area);

    QPainter m_painter;
    QRectF m_clip;
    struct Around
    {
        QString name;
        QRectF clip;
    };
    QList<Around> m_around;
    Places m_places;
};

} // namespace vexal::sample
