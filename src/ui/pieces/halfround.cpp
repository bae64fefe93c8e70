#include "halfround.h"

#include <QPainter>
#include <QPainterPath>

namespace vexal {
HalfRound::HalfRound(QQuickItem *parent)
    : Drawing(parent)
{
    connect(this, &HalfRound::changed, this, &QQuickItem::update);
}

void HalfRound::draw(QPainter &painter) const
{
    const qreal inset = m_stroke / 2;
    const qreal radius = height() / 2 - inset;
    // Drawn with the flat side on the left, at the inset; the other way round is its reflection.
    if (!m_mirrored) {
        painter.translate(height() / 2, 0);
        painter.scale(-1, 1);
    }
    QPainterPath path(QPointF(inset, inset));
    path.arcTo(inset - radius, inset, 2 * radius, 2 * radius, 90, -180);
    path.closeSubpath();
    painter.setPen(m_stroke > 0 ? QPen(m_color, m_stroke, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin) : QPen(Qt::NoPen));
    painter.setBrush(m_stroke > 0 ? QBrush(Qt::NoBrush) : QBrush(m_color));
    painter.drawPath(path);
}
} // namespace vexal
