#include "windowglyph.h"

#include <QPainter>

namespace vexal {

namespace {

constexpr qreal half = 2.1;
constexpr qreal stroke = 1.1;
constexpr qreal corner = 0.6;

} // namespace

WindowGlyph::WindowGlyph(QQuickItem *parent)
    : Drawing(parent)
{
    setImplicitSize(13, 13);
    connect(this, &WindowGlyph::changed, this, &QQuickItem::update);
}

void WindowGlyph::draw(QPainter &painter) const
{
    painter.setPen(QPen(m_color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(width() / 2, height() / 2);
    switch (m_sign) {
    case Close:
        painter.drawLine(QPointF(-half, -half), QPointF(half, half));
        painter.drawLine(QPointF(-half, half), QPointF(half, -half));
        break;
    case Minimise:
        painter.drawLine(QPointF(-half, 0), QPointF(half, 0));
        break;
    case Zoom:
        painter.drawRoundedRect(QRectF(-half, -half, 2 * half, 2 * half), corner, corner);
        break;
    }
}

} // namespace vexal
