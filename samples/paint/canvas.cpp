#include "canvas.h"

namespace vexal::sample {

Canvas::Canvas(QImage *page)
    : m_painter(page)
    , m_clip(page->rect())
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

Canvas::Scope Canvas::named(const QString &name)
{
    enter(name);
    return Scope(this);
}

Canvas::Scope Canvas::placed(QPointF at, double scale, double degrees)
{
    enter({});
    m_painter.translate(at);
    m_painter.rotate(degrees);
    m_painter.scale(scale, scale);
    return Scope(this);
}

Canvas::Scope Canvas::mirrored(QPointF at, double scale, double degrees)
{
    enter({});
    m_painter.translate(at);
    m_painter.rotate(degrees);
    m_painter.scale(-scale, scale);
    return Scope(this);
}

Canvas::Scope Canvas::clipped(const QPainterPath &edge)
{
    enter({});
    m_painter.setClipPath(edge, Qt::IntersectClip);
    m_clip &= m_painter.transform().map(edge).boundingRect();
    return Scope(this);
}

void Canvas::fill(const QPainterPath &shape, const QBrush &brush)
{
    m_painter.fillPath(shape, brush);
    touch(m_painter.transform().map(shape).boundingRect());
}

void Canvas::stroke(const QPainterPath &line, const QColor &colour, double width, Qt::PenCapStyle cap)
{
    stroke(line, QPen(colour, width, Qt::SolidLine, cap, Qt::RoundJoin));
}

void Canvas::stroke(const QPainterPath &line, const QPen &pen)
{
    m_painter.strokePath(line, pen);
    const double half = pen.widthF() / 2;
    touch(m_painter.transform().mapRect(line.boundingRect().adjusted(-half, -half, half, half)));
}

void Canvas::enter(const QString &name)
{
    m_painter.save();
    m_around.append({name, m_clip});
}

void Canvas::leave()
{
    m_painter.restore();
    m_clip = m_around.takeLast().clip;
}

void Canvas::touch(QRectF area)
{
    area &= m_clip;
    if (area.isEmpty())
        return;
    for (const Around &around : std::as_const(m_around)) {
        if (!around.name.isEmpty())
            m_places[around.name] |= area;
    }
}

} // namespace vexal::sample
