#include "openring.h"

#include <QPainter>

namespace vexal {
namespace {
constexpr qreal kDrawn = 0.72; // of the whole turn
}

OpenRing::OpenRing(QQuickItem *parent)
    : Drawing(parent)
{
    connect(this, &OpenRing::changed, this, &QQuickItem::update);
}

void OpenRing::draw(QPainter &painter) const
{
    const qreal line = lineWidth(width());
    const qreal inset = line / 2;
    painter.setPen(QPen(m_color, line, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(inset, inset, width() - line, height() - line), 90 * 16, qRound(-kDrawn * 360 * 16));
}
} // namespace vexal
