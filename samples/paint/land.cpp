#include "land.h"

#include "sky.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

void hills(Canvas &canvas, const QRectF &area, double top, double swing, quint64 seed, const QColor &crest,
           const QColor &foot)
{
    Dice dice(seed);
    QPolygonF points;
    const double step = area.width() / 3.4;
    const double start = area.x() - dice.between(0.2, 1) * step;
    for (int i = 0; i < 7; ++i)
        points << QPointF(start + i * step, top + (i % 2 == 0 ? -1 : 1) * dice.between(0.25, 1) * swing);
    QPainterPath ground = through(points);
    ground.lineTo(points.last().x(), area.bottom());
    ground.lineTo(points.first().x(), area.bottom());
    ground.closeSubpath();
    QLinearGradient fade(0, top - swing, 0, area.bottom());
    fade.setColorAt(0, crest);
    fade.setColorAt(1, foot);
    const auto clip = canvas.clipped(box(area));
    canvas.fill(ground, fade);
}

void fir(Canvas &canvas, QPointF at, double height, const QColor &colour)
{
    const auto placed = canvas.placed(at, height / 100);
    static const QPainterPath left = outline(
        "M0 -100 C-5 -88 -10 -80 -17 -72 C-13 -71 -11 -72 -9 -73 C-13 -62 -19 -52 -26 -44 C-21 -43 -17 -44 -14 -46 "
        "C-18 -34 -25 -22 -34 -12 C-24 -7 -12 -6 0 -6 Z"_L1);
    canvas.fill(box({-3.5, -10, 7, 12}), mix(colour, Qt::black, 0.35));
    canvas.fill(left, colour);
    canvas.fill(mirrored(left), mix(colour, Qt::white, 0.07));
}

void roundTree(Canvas &canvas, QPointF at, double height, const QColor &crown, const QColor &trunk, const QColor &fruit)
{
    const auto placed = canvas.placed(at, height / 100);
    canvas.fill(outline("M-5 0 C-3 -14 -3 -26 -4 -40 L-16 -56 L-12 -58 L-2 -46 L0 -60 L4 -60 L4 -44 L14 -58 L18 -55 "
                        "L5 -36 C4 -22 5 -12 8 0 Z"_L1),
                trunk);
    const QPainterPath leaves =
        outline("M-34 -50 C-46 -62 -40 -82 -25 -84 C-20 -100 10 -104 20 -90 C36 -92 44 -74 36 -62 C40 -50 28 -42 18 "
                "-46 C8 -38 -8 -38 -16 -45 C-22 -40 -32 -42 -34 -50 Z"_L1);
    canvas.fill(leaves, crown);
    const auto clip = canvas.clipped(leaves);
    canvas.fill(ellipse({-10, -86}, 20, 13), mix(crown, Qt::white, 0.13));
    canvas.fill(ellipse({18, -72}, 14, 9), mix(crown, Qt::white, 0.09));
    canvas.fill(ellipse({-14, -58}, 13, 7), mix(crown, Qt::white, 0.07));
    if (!fruit.isValid())
        return;
    for (const QPointF apple :
         {QPointF(-24, -66), QPointF(-6, -72), QPointF(14, -58), QPointF(24, -76), QPointF(2, -90)}) {
        canvas.fill(circle(apple, 4), fruit);
        canvas.fill(circle(apple + QPointF(-1.2, -1.2), 1.2), ink(0xFFFFFF, 0.5));
    }
}

void oldTree(Canvas &canvas, QPointF at, double height, const QColor &trunk, const QColor &leaves)
{
    const auto placed = canvas.placed(at, height / 1000);
    canvas.fill(ellipse({30, -960}, 240, 90), mix(leaves, Qt::black, 0.22));
    canvas.fill(
        outline("M-86 0 C-60 -120 -58 -260 -66 -420 C-72 -560 -96 -680 -150 -800 L-104 -822 C-70 -740 -42 -690 "
                "-18 -660 C-4 -760 40 -860 150 -930 L176 -894 C100 -840 62 -760 54 -660 C110 -720 190 -760 300 "
                "-776 L306 -752 C190 -724 110 -670 62 -590 C40 -480 44 -300 56 -180 C62 -110 74 -50 100 0 Z"_L1),
        trunk);
    canvas.fill(outline("M-30 0 C-24 -160 -30 -320 -22 -520 C-12 -340 -8 -160 6 0 Z"_L1), mix(trunk, Qt::white, 0.05));
    canvas.fill(ellipse({12, -420}, 17, 26), mix(trunk, Qt::black, 0.4));
    const auto crown = [&](QPointF middle, double across, double down, double light) {
        canvas.fill(ellipse(middle, across, down), mix(leaves, ink(0x8FC7A0), 1.6 * light));
    };
    crown({-170, -880}, 220, 110, 0);
    crown({190, -960}, 230, 96, 0.02);
    crown({20, -930}, 200, 88, 0.06);
    crown({300, -800}, 116, 54, 0.03);
    crown({-120, -920}, 120, 50, 0.12);
    crown({210, -985}, 130, 44, 0.12);
    crown({40, -955}, 96, 34, 0.16);
    crown({316, -815}, 62, 24, 0.1);
}

void tuft(Canvas &canvas, QPointF at, double height, const QColor &colour)
{
    const auto placed = canvas.placed(at, height / 40);
    canvas.fill(
        outline("M-9 0 C-10 -14 -16 -24 -22 -30 C-12 -26 -6 -16 -4 -4 C-4 -20 -3 -32 2 -40 C3 -28 3 -16 3 -4 C6 "
                "-14 12 -24 20 -28 C13 -20 9 -10 8 0 Z"_L1),
        colour);
}

void meadow(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &grass, const QColor &petal)
{
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const double down = (i + 0.5) / count; // from back to front
        const QPointF at(area.x() + dice.between(0, area.width()), area.y() + down * area.height());
        const double size = 18 + 26 * down;
        if (!petal.isValid() || dice.below(3) != 0) {
            tuft(canvas, at, size, mix(grass, Qt::black, dice.between(0, 0.14)));
            continue;
        }
        QPainterPath stalk(at);
        stalk.quadTo(at + QPointF(3, -size / 2), at + QPointF(1, -size));
        canvas.stroke(stalk, mix(grass, Qt::black, 0.2), 2.4);
        for (int leaf = 0; leaf < 5; ++leaf) {
            const double angle = qDegreesToRadians(72.0 * leaf + 20);
            canvas.fill(circle(at + QPointF(1, -size) + 0.2 * size * QPointF(qCos(angle), qSin(angle)), 0.16 * size),
                        petal);
        }
        canvas.fill(circle(at + QPointF(1, -size), 0.13 * size), ink(0xF6C453));
    }
}

void windingPath(Canvas &canvas, QPointF foot, QPointF end, double width, const QColor &colour)
{
    const QPointF way = end - foot;
    const QPointF first = foot + QPointF(0.9 * way.x() + 140, 0.36 * way.y());
    const QPointF second = foot + QPointF(0.1 * way.x() - 120, 0.66 * way.y());
    QPainterPath path(foot - QPointF(width, 0));
    path.cubicTo(first - QPointF(width * 0.7, 0), second - QPointF(width * 0.3, 0), end - QPointF(2, 0));
    path.lineTo(end + QPointF(2, 0));
    path.cubicTo(second + QPointF(width * 0.3, 12), first + QPointF(width * 0.5, 30), foot + QPointF(width, 0));
    path.closeSubpath();
    canvas.fill(path, colour);
}

void house(Canvas &canvas, QPointF at, double width, const QColor &wall, const QColor &roof, const QColor &window)
{
    const auto placed = canvas.placed(at, width / 100);
    canvas.fill(box({22, -112, 14, 34}), mix(roof, Qt::black, 0.25));
    canvas.fill(box({-42, -62, 84, 64}), wall);
    canvas.fill(box({8, -62, 34, 64}), mix(wall, Qt::black, 0.1));
    canvas.fill(outline("M-54 -56 C-34 -76 -16 -96 0 -112 C16 -96 34 -76 54 -56 Z"_L1), roof);
    canvas.fill(outline("M-22 2 L-22 -22 C-22 -36 0 -36 0 -22 L0 2 Z"_L1), mix(roof, Qt::black, 0.35));
    glow(canvas, {24, -34}, 34, ink(window.rgb(), 0.4));
    canvas.fill(box({15, -46, 20, 22}, 2), window);
    canvas.stroke(outline("M25 -46 L25 -24 M15 -35 L35 -35"_L1), mix(roof, Qt::black, 0.2), 2.4, Qt::FlatCap);
    canvas.fill(circle({0, -78}, 6), window);
}

void mill(Canvas &canvas, QPointF at, double height, const QColor &wall, const QColor &sails, const QColor &window)
{
    const auto placed = canvas.placed(at, height / 200);
    canvas.fill(outline("M-44 2 L-28 -130 L28 -130 L44 2 Z"_L1), wall);
    canvas.fill(outline("M6 2 L10 -130 L28 -130 L44 2 Z"_L1), mix(wall, Qt::black, 0.12));
    canvas.fill(outline("M-34 -128 C-30 -168 30 -168 34 -128 Z"_L1), sails);
    canvas.fill(outline("M-12 2 L-12 -26 C-12 -42 12 -42 12 -26 L12 2 Z"_L1), mix(wall, Qt::black, 0.4));
    canvas.fill(box({-8, -92, 16, 20}, 7), window);
    const auto hub = canvas.placed({0, -138}, 1, 18);
    for (int arm = 0; arm < 4; ++arm) {
        const auto turn = canvas.placed({0, 0}, 1, 90 * arm);
        canvas.fill(box({-2.5, -96, 5, 96}), mix(sails, Qt::black, 0.3));
        canvas.fill(box({2, -94, 20, 70}, 2), ink(mix(sails, Qt::white, 0.35).rgb(), 0.92));
        for (int slat = 0; slat < 4; ++slat)
            canvas.fill(box({2, -80.0 + 16 * slat, 20, 2}), mix(sails, Qt::black, 0.1));
    }
    canvas.fill(circle({0, 0}, 7), mix(sails, Qt::black, 0.4));
}

void gate(Canvas &canvas, QPointF at, double width, const QColor &wood)
{
    const auto placed = canvas.placed(at, width / 200);
    const QColor dark = mix(wood, Qt::black, 0.22);
    for (const double x : {-92.0, 80.0}) {
        canvas.fill(box({x, -118, 14, 120}, 3), dark);
        canvas.fill(outline("M-4 -114 L7 -132 L18 -114 Z"_L1).translated(x, 0), wood);
    }
    canvas.fill(polygon({{-74, -14}, {-66, -14}, {74, -88}, {66, -88}}), dark);
    for (const double y : {-92.0, -56.0, -20.0})
        canvas.fill(box({-80, y, 162, 11}, 3), wood);
    for (const double x : {-58.0, -20.0, 18.0, 56.0})
        canvas.fill(box({x - 5, -100, 10, 96}, 3), wood);
}

} // namespace vexal::sample
