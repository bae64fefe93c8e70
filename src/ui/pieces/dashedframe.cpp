#include "dashedframe.h"

#include <QPainter>

namespace vexal {

DashedFrame::DashedFrame(QQuickItem *parent)
    : Drawing(parent)
{
    connect(this, &DashedFrame::changed, this, &QQuickItem::update);
}

void DashedFrame::draw(QPainter &painter) const
{
    QPen pen(m_color, 1);
    pen.setDashPattern({4, 3});
    painter.setPen(pen);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(QRectF(0.5, 0.5, width() - 1, height() - 1));
}

} // namespace vexal
