#include "dashes.h"

#include <QPainter>

namespace vexal {
namespace {
constexpr int kDash = 3; // points
constexpr int kStep = 5; // from one dash to the next
} // namespace

Dashes::Dashes(QQuickItem *parent)
    : Drawing(parent)
{
    setImplicitHeight(1);
    connect(this, &Dashes::changed, this, &QQuickItem::update);
}

void Dashes::draw(QPainter &painter) const
{
    for (int x = 0; x < width(); x += kStep)
        painter.fillRect(QRectF(x, 0, qMin<qreal>(kDash, width() - x), 1), m_color);
}
} // namespace vexal
