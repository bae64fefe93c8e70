#include "googleg.h"

#include <QPainter>

namespace vexal {
namespace {
struct Arc
{
    QColor colour;
    qreal from, to; // degrees, clockwise from the right
};

const QColor kBlue = QColor::fromRgbF(0.26F, 0.52F, 0.96F);
const Arc kArcs[] = {
    {kBlue, -40, 45},
    {QColor::fromRgbF(0.20F, 0.66F, 0.33F), 45, 135},
    {QColor::fromRgbF(0.98F, 0.74F, 0.02F), 135, 200},
    {QColor::fromRgbF(0.92F, 0.26F, 0.21F), 200, 320},
};
constexpr qreal kLine = 0.42; // of half the width
} // namespace

GoogleG::GoogleG(QQuickItem *parent)
    : Drawing(parent)
{
    setImplicitSize(18, 18);
}

void GoogleG::draw(QPainter &painter) const
{
    const qreal half = width() / 2;
    const qreal line = kLine * half;
    const qreal radius = half - line / 2;
    const QRectF ring(half - radius, half - radius, 2 * radius, 2 * radius);
    for (const Arc &arc : kArcs) {
        painter.setPen(QPen(arc.colour, line, Qt::SolidLine, Qt::FlatCap));
        // QPainter counts sixteenths of a degree against the clock.
        painter.drawArc(ring, qRound(-arc.from * 16), qRound(-(arc.to - arc.from) * 16));
    }
    painter.fillRect(QRectF(half, half - line / 2, half, line), kBlue);
}
} // namespace vexal
