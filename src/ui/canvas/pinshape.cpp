#include "pinshape.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace vexal {

namespace {

constexpr QSizeF pinSize(24, 29);
constexpr qreal headRadius = 10.2;
constexpr qreal outlineWidth = 1.6;
constexpr qreal plusReach = 4.2;

// The head and the two tangents from the tip to it.
QPainterPath drop()
{
    const QPointF head(pinSize.width() / 2, headRadius + outlineWidth);
    const QPointF tip(pinSize.width() / 2, pinSize.height() - outlineWidth);
    const qreal turn = std::acos(headRadius / (tip.y() - head.y()));
    const QPointF touch(headRadius * std::sin(turn), headRadius * std::cos(turn));
    QPainterPath point(tip);
    point.lineTo(head + touch);
    point.lineTo(head + QPointF(-touch.x(), touch.y()));
    point.closeSubpath();
    QPainterPath round;
    round.addEllipse(head, headRadius, headRadius);
    return round.united(point);
}

} // namespace

PinShape::PinShape(QQuickItem *parent)
    : Drawing(parent)
{
    setImplicitSize(pinSize.width(), pinSize.height());
    connect(this, &PinShape::changed, this, &QQuickItem::update);
}

void PinShape::draw(QPainter &painter) const
{
    const QPainterPath shape = drop();
    painter.strokePath(shape, QPen(m_outline, 2 * outlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(shape, m_color);
    if (!m_plus)
        return;
    const QPointF head(pinSize.width() / 2, headRadius + outlineWidth);
    painter.setPen(QPen(m_outline, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(head - QPointF(plusReach, 0), head + QPointF(plusReach, 0));
    painter.drawLine(head - QPointF(0, plusReach), head + QPointF(0, plusReach));
}

} // namespace vexal
