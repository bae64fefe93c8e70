#include "dottedline.h"

#include <QPainter>

namespace vexal {
namespace {
constexpr qreal kDash = 3; // points; the gap is as long as two
constexpr qreal kStep = 5;
} // namespace

DottedLine::DottedLine(QQuickItem *parent)
    : Drawing(parent)
{
    setImplicitHeight(1);
    connect(this, &DottedLine::changed, this, &QQuickItem::update);
}

void DottedLine::draw(QPainter &painter) const
{
    for (qreal x = 0; x < width(); x += kStep)
        painter.fillRect(QRectF(x, 0, qMin(kDash, width() - x), 1), m_color);
}
} // namespace vexal
