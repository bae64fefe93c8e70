#include "lantern.h"

#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void lantern(Canvas &canvas, QPointF at, double height, bool lit, const QColor &paper)
{
    const auto placed = canvas.placed(at, height / 100);
    const QColor iron = ink(0x23282F);
    const QColor body = lit ? paper : ink(0x68717E);
    if (lit) {
        glow(canvas, {0, 56}, 84, ink(paper.rgb(), 0.6));
        canvas.fill(circle({0, 56}, 58), ink(mix(paper, Qt::white, 0.2).rgb(), 0.24));
    }
    canvas.stroke(outline("M0 0 L0 20 M-9 26 C-9 14 9 14 9 26"_L1), iron, 2.6);
    const QPainterPath paperBag = outline("M-19 30 C-30 42 -30 74 -19 86 L19 86 C30 74 30 42 19 30 Z"_L1);
    QLinearGradient light(-28, 0, 28, 0);
    light.setColorAt(0, mix(body, Qt::black, 0.14));
    light.setColorAt(0.42, lit ? mix(body, Qt::white, 0.28) : mix(body, Qt::white, 0.06));
    light.setColorAt(1, mix(body, Qt::black, 0.08));
    canvas.fill(paperBag, light);
    if (lit) {
        canvas.fill(ellipse({0, 60}, 10, 15), ink(0xFFF3C9, 0.9));
        canvas.fill(outline("M0 46 C7 56 6 68 0 70 C-6 68 -7 56 0 46 Z"_L1), ink(0xFFFDF0));
    }
    canvas.stroke(outline("M-9 31 C-14 46 -14 70 -9 86 M9 31 C14 46 14 70 9 86"_L1),
                  ink(mix(body, Qt::black, 0.4).rgb(), 0.65), 2);
    canvas.fill(box({-21, 25, 42, 8}, 3), iron);
    canvas.fill(box({-21, 84, 42, 8}, 3), iron);
    canvas.fill(circle({0, 96}, 3.6), iron);
}

void cord(Canvas &canvas, const QPolygonF &points, const QColor &colour, double width)
{
    canvas.stroke(through(points), colour, width);
}

} // namespace vexal::sample
