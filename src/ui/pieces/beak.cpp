#include "beak.h"

#include <QPainter>
#include <QPainterPath>

namespace vexal {

Beak::Beak(QQuickItem *parent)
    : Drawing(parent)
{
    connect(this, &Beak::changed, this, &QQuickItem::update);
}

void Beak::draw(QPainter &painter) const
{
    const QPointF left(0, m_line);
    const QPointF tip(width() / 2, height());
    const QPointF right(width(), m_line);
    QPainterPath shape(QPointF(0, 0));
    for (const QPointF &corner : {left, tip, right, QPointF(width(), 0)})
        shape.lineTo(corner);
    painter.fillPath(shape, m_color);
    painter.setPen(QPen(m_outline, m_line, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({left, tip, right}));
}

} // namespace vexal
