#include "carnival.h"

#include "sky.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// A point of a sagging cord.
QPointF hanging(QPointF from, QPointF to, double sag, double share)
{
    return from + (to - from) * share + QPointF(0, 4 * sag * share * (1 - share));
}

QPainterPath sagging(QPointF from, QPointF to, double sag)
{
    QPainterPath line(from);
    line.quadTo((from + to) / 2 + QPointF(0, 2 * sag), to);
    return line;
}

} // namespace

void tent(Canvas &canvas, QPointF at, double width, const QColor &stripe, const QColor &cloth, const QColor &flag)
{
    const auto placed = canvas.placed(at, width / 200);
    canvas.stroke(outline("M0 -176 L0 -222"_L1), mix(stripe, Qt::black, 0.4), 3);
    canvas.fill(outline("M0 -222 C16 -226 20 -212 38 -216 L30 -206 L38 -196 C20 -194 16 -206 0 -202 Z"_L1), flag);
    // the wall: seven cloths
    const auto strip = [](double left, double right) {
        return polygon({{left, -72}, {right, -72}, {right * 1.06, 0}, {left * 1.06, 0}});
    };
    for (int i = 0; i < 7; ++i) {
        const double left = -84 + 24.0 * i;
        canvas.fill(strip(left, left + 24), i % 2 == 0 ? stripe : cloth);
    }
    canvas.fill(strip(12, 84), ink(0x000000, 0.1));
    canvas.fill(outline("M-16 0 C-16 -40 -6 -58 0 -66 C6 -58 16 -40 16 0 Z"_L1), mix(stripe, Qt::black, 0.62));
    canvas.fill(outline("M-16 0 C-16 -40 -6 -58 0 -66 C-4 -44 -6 -20 -5 0 Z"_L1), mix(cloth, Qt::black, 0.1));
    // the roof: each cloth runs from the top to the eaves
    for (int i = 0; i < 7; ++i) {
        const double left = -102 + 204.0 / 7 * i;
        const double right = left + 204.0 / 7;
        QPainterPath panel({0, -178});
        panel.quadTo(left * 0.36, -118, left, -76);
        panel.lineTo(right, -76);
        panel.quadTo(right * 0.36, -118, 0, -178);
        canvas.fill(panel, i % 2 == 0 ? stripe : cloth);
        QPainterPath flap({left, -78});
        flap.lineTo(right, -78);
        flap.cubicTo(right, -52, left, -52, left, -78);
        canvas.fill(flap, i % 2 == 0 ? mix(cloth, stripe, 0.12) : mix(stripe, Qt::black, 0.12));
    }
    QPainterPath shade({0, -178});
    shade.quadTo(36.7, -118, 102, -76);
    shade.lineTo(30, -76);
    shade.quadTo(12, -118, 0, -178);
    canvas.fill(shade, ink(0x000000, 0.09));
    canvas.fill(circle({0, -178}, 6), flag);
}

void wheel(Canvas &canvas, QPointF at, double radius, const QColor &iron, const QList<QColor> &cars)
{
    const auto placed = canvas.placed(at, radius / 100);
    canvas.stroke(outline("M0 0 L-46 128 M0 0 L46 128"_L1), iron, 7);
    canvas.stroke(circle({0, 0}, 100), iron, 3.4);
    canvas.stroke(circle({0, 0}, 90), iron, 2);
    const int count = static_cast<int>(cars.size());
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * i / count + 0.2;
        const QPointF rim = 100 * QPointF(qCos(angle), qSin(angle));
        QPainterPath spoke({0, 0});
        spoke.lineTo(rim);
        canvas.stroke(spoke, iron, 1.8);
        const auto car = canvas.placed(rim);
        canvas.fill(outline("M-12 2 C-12 -10 12 -10 12 2 Z"_L1), mix(cars.at(i), Qt::white, 0.15));
        canvas.fill(outline("M-14 8 L14 8 L10 22 C6 26 -6 26 -10 22 Z"_L1), cars.at(i));
        canvas.stroke(outline("M-11 2 V10 M11 2 V10"_L1), iron, 1.8);
    }
    canvas.fill(circle({0, 0}, 10), iron);
}

void bunting(Canvas &canvas, QPointF from, QPointF to, double sag, const QList<QColor> &inks, const QColor &cord)
{
    canvas.stroke(sagging(from, to, sag), cord, 3);
    const int count = qMax(3, qRound(QLineF(from, to).length() / 52));
    for (int i = 0; i < count; ++i) {
        const QPointF left = hanging(from, to, sag, (i + 0.14) / count);
        const QPointF right = hanging(from, to, sag, (i + 0.86) / count);
        const QPointF across = right - left;
        const QPointF tip = (left + right) / 2 + QPointF(-across.y(), across.x()) * 1.15;
        canvas.fill(polygon({left, right, tip}), inks.at(i % inks.size()));
    }
}

void bulbs(Canvas &canvas, QPointF from, QPointF to, double sag, const QColor &light, const QColor &cord)
{
    canvas.stroke(sagging(from, to, sag), cord, 3.4);
    const int count = qMax(3, qRound(QLineF(from, to).length() / 74));
    for (int i = 0; i < count; ++i) {
        const QPointF at = hanging(from, to, sag, (i + 0.5) / count) + QPointF(0, 13);
        glow(canvas, at, 36, ink(light.rgb(), 0.55));
        canvas.fill(box({at.x() - 4, at.y() - 14, 8, 9}, 2), cord);
        canvas.fill(ellipse(at, 8, 9.6), mix(light, Qt::white, 0.35));
    }
}

void crowd(Canvas &canvas, const QRectF &area, quint64 seed, const QColor &colour)
{
    Dice dice(seed);
    const auto clip = canvas.clipped(box(area));
    double x = area.left() - 20;
    while (x < area.right() + 20) {
        const double size = dice.between(0.8, 1.2) * area.height() * 0.27;
        const QPointF head(x, area.bottom() - dice.between(0.35, 0.62) * area.height());
        canvas.fill(circle(head, size * 0.5), colour);
        canvas.fill(box({x - size * 0.72, head.y() + size * 0.48, size * 1.44, area.height()}, size * 0.6), colour);
        switch (dice.below(9)) {
        case 0:
            canvas.fill(box({x - size * 0.36, head.y() - size * 1.05, size * 0.72, size * 0.7}, 3), colour);
            break;
        case 1:
            canvas.fill(polygon({head + QPointF(-0.4, -0.3) * size, head + QPointF(0.4, -0.3) * size,
                                 head + QPointF(0.1, -1.15) * size}),
                        colour);
            break;
        case 2:
            canvas.fill(circle(head + QPointF(0, -0.56) * size, size * 0.2), colour);
            break;
        default:
            break;
        }
        x += dice.between(22, 40);
    }
}

} // namespace vexal::sample
