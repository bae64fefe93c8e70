#include "sea.h"

#include "sky.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

void sailboat(Canvas &canvas, QPointF at, double width, const QColor &hull, const QColor &sail, const QColor &stripe)
{
    const auto placed = canvas.placed(at, width / 200);
    canvas.fill(box({-4, -196, 7, 170}, 3), mix(hull, Qt::black, 0.35));
    canvas.fill(outline("M3 -196 C16 -192 22 -200 34 -196 L34 -182 C22 -186 16 -178 3 -182 Z"_L1), stripe);
    const QPainterPath main = outline("M8 -178 C58 -140 84 -92 90 -40 C60 -34 34 -34 8 -38 Z"_L1);
    canvas.fill(main, sail);
    {
        const auto clip = canvas.clipped(main);
        canvas.fill(box({0, -92, 110, 18}), stripe);
        canvas.fill(outline("M8 -178 C22 -130 26 -80 20 -30 L0 -30 L0 -178 Z"_L1), mix(sail, Qt::black, 0.06));
    }
    canvas.fill(outline("M-10 -172 C-44 -134 -66 -88 -76 -42 C-52 -38 -30 -38 -10 -40 Z"_L1),
                mix(sail, Qt::black, 0.07));
    canvas.fill(outline("M-104 -28 C-70 -22 60 -20 104 -36 C98 -8 82 14 56 18 L-58 18 C-82 14 -98 -4 -104 -28 Z"_L1),
                hull);
    canvas.fill(outline("M-104 -28 C-70 -22 60 -20 104 -36 L101 -24 C60 -8 -70 -10 -101 -16 Z"_L1),
                mix(hull, Qt::white, 0.28));
    for (const double x : {-44.0, -12.0, 20.0, 52.0})
        canvas.fill(circle({x, 2}, 5), mix(hull, Qt::white, 0.4));
}

void paperBoat(Canvas &canvas, QPointF at, double width, const QColor &paper)
{
    const auto placed = canvas.placed(at, width / 200);
    canvas.fill(polygon({{0, -112}, {-46, -20}, {46, -20}}), paper);
    canvas.fill(polygon({{0, -112}, {0, -20}, {46, -20}}), mix(paper, Qt::black, 0.12));
    canvas.fill(polygon({{-100, -44}, {-30, -30}, {0, -16}, {30, -30}, {100, -44}, {58, 14}, {-58, 14}}),
                mix(paper, Qt::white, 0.25));
    canvas.fill(polygon({{0, -16}, {30, -30}, {100, -44}, {58, 14}, {0, 14}}), mix(paper, Qt::black, 0.06));
}

void lighthouse(Canvas &canvas, QPointF at, double height, const QColor &wall, const QColor &stripe, bool beam)
{
    const auto placed = canvas.placed(at, height / 300);
    if (beam) {
        for (const bool left : {false, true}) {
            const auto side = left ? canvas.mirrored({0, -262}) : canvas.placed({0, -262});
            QLinearGradient light(0, 0, 520, 0);
            light.setColorAt(0, ink(0xFFE9A8, 0.75));
            light.setColorAt(1, ink(0xFFE9A8, 0));
            canvas.fill(polygon({{6, -6}, {520, -86}, {520, 46}, {6, 8}}), light);
        }
    }
    canvas.fill(outline("M-120 6 C-104 -18 -70 -22 -52 -34 C-20 -44 30 -42 54 -30 C84 -24 104 -14 122 6 Z"_L1),
                ink(0x4B4A55));
    canvas.fill(outline("M30 -38 C84 -24 104 -14 122 6 L20 6 Z"_L1), ink(0x3D3C47));
    const QPainterPath tower = outline("M-42 -32 L-26 -228 L26 -228 L42 -32 Z"_L1);
    canvas.fill(tower, wall);
    {
        const auto clip = canvas.clipped(tower);
        for (const double y : {-206.0, -138.0, -70.0})
            canvas.fill(polygon({{-60, y + 8}, {60, y - 4}, {60, y + 26}, {-60, y + 38}}), stripe);
        canvas.fill(box({10, -240, 50, 220}), ink(0x000000, 0.1));
    }
    canvas.fill(box({-36, -236, 72, 11}, 3), mix(stripe, Qt::black, 0.45));
    canvas.fill(box({-20, -272, 40, 38}), ink(0xFFE9A8));
    glow(canvas, {0, -254}, 60, ink(0xFFE9A8, 0.6));
    canvas.stroke(outline("M-20 -272 V-236 M0 -272 V-236 M20 -272 V-236"_L1), mix(stripe, Qt::black, 0.45), 3.4,
                  Qt::FlatCap);
    canvas.fill(outline("M-28 -270 C-22 -292 -8 -298 0 -302 C8 -298 22 -292 28 -270 Z"_L1), stripe);
    canvas.fill(box({-8, -186, 13, 20}, 6), ink(0x33414F));
    canvas.fill(box({-7, -112, 13, 20}, 6), ink(0x33414F));
    canvas.fill(outline("M-13 -32 L-13 -58 C-13 -72 13 -72 13 -58 L13 -32 Z"_L1), mix(stripe, Qt::black, 0.3));
}

void waves(Canvas &canvas, const QRectF &area, int rows, const QColor &far, const QColor &near)
{
    const auto clip = canvas.clipped(box(area));
    for (int row = 0; row < rows; ++row) {
        const double share = rows > 1 ? static_cast<double>(row) / (rows - 1) : 0;
        const double y = area.top() + area.height() * 0.9 * share * (0.5 + 0.5 * share);
        const double length = 70 + 120 * share;
        const double rise = 5 + 13 * share;
        QPainterPath water({area.left() - length * (0.3 + 0.4 * (row % 2)), y});
        while (water.currentPosition().x() < area.right()) {
            const QPointF from = water.currentPosition();
            water.cubicTo(from + QPointF(length * 0.3, -rise * 1.5), from + QPointF(length * 0.55, -rise * 1.2),
                          from + QPointF(length * 0.6, 0));
            water.cubicTo(from + QPointF(length * 0.7, rise * 0.6), from + QPointF(length * 0.85, rise * 0.5),
                          from + QPointF(length, 0));
        }
        water.lineTo(area.right() + 200, area.bottom());
        water.lineTo(area.left() - 200, area.bottom());
        water.closeSubpath();
        canvas.fill(water, mix(far, near, share));
    }
}

namespace {

/// A gable over the wall from x to x + 100, stepped or pointed.
void gable(Canvas &canvas, double x, double top, bool stepped, const QColor &wall, const QColor &roof)
{
    if (!stepped) {
        canvas.fill(polygon({{x - 4, top}, {x + 50, top - 62}, {x + 104, top}}), roof);
        return;
    }
    QPolygonF steps;
    steps << QPointF(x, top) << QPointF(x, top - 22) << QPointF(x + 22, top - 22) << QPointF(x + 22, top - 46)
          << QPointF(x + 40, top - 46) << QPointF(x + 40, top - 66) << QPointF(x + 60, top - 66)
          << QPointF(x + 60, top - 46) << QPointF(x + 78, top - 46) << QPointF(x + 78, top - 22)
          << QPointF(x + 100, top - 22) << QPointF(x + 100, top);
    canvas.fill(polygon(steps), mix(wall, Qt::white, 0.1));
}

/// Two windows a floor, some of them lit.
void windows(Canvas &canvas, double x, double top, qsizetype house, const QColor &wall, const QColor &window)
{
    const int floors = qCeil((-80 - top) / 44);
    for (int floor = 0; floor < floors; ++floor)
        for (const double dx : {20.0, 58.0}) {
            const double y = top + 20 + 44.0 * floor;
            const bool lit = (qRound(y + dx) + house) % 3 == 0;
            canvas.fill(box({x + dx, y, 22, 28}, 2), lit ? window : mix(wall, ink(0x27384A), 0.72));
            canvas.stroke(outline("M11 0 V28 M0 13 H22"_L1).translated(x + dx, y), mix(wall, Qt::white, 0.5), 2,
                          Qt::FlatCap);
        }
}

} // namespace

void quay(Canvas &canvas, QPointF at, double width, const QList<QColor> &walls, const QColor &roof,
          const QColor &window)
{
    const double half = 50.0 * static_cast<double>(walls.size());
    const auto placed = canvas.placed(at, width / (2 * half));
    for (qsizetype i = 0; i < walls.size(); ++i) {
        const double x = 100.0 * static_cast<double>(i) - half;
        const double top = -150 - 34.0 * static_cast<double>((i * 7) % 4);
        const QColor wall = walls.at(i);
        canvas.fill(box({x, top, 100, -top}), wall);
        canvas.fill(box({x + 82, top, 18, -top}), mix(wall, Qt::black, 0.1));
        gable(canvas, x, top, i % 3 == 0, wall, i % 2 == 0 ? roof : mix(roof, Qt::black, 0.16));
        canvas.fill(circle({x + 50, top - 22}, 8), mix(wall, Qt::black, 0.45));
        windows(canvas, x, top, i, wall, window);
        canvas.fill(outline("M-13 0 V-34 C-13 -46 13 -46 13 -34 V0 Z"_L1).translated(x + 50, 0),
                    mix(wall, Qt::black, 0.5));
    }
}

namespace {

/// One cut between two corners, with a knob to one side.
void cut(QPainterPath &path, QPointF from, QPointF to, Dice &dice)
{
    const QPointF along = to - from;
    const double side = dice.below(2) == 0 ? 1 : -1;
    const QPointF out(-along.y() * side, along.x() * side);
    const double middle = dice.between(0.44, 0.56);
    const double sway = dice.between(-0.04, 0.04);
    const auto at = [&](double t, double away) { return from + along * t + out * away; };
    path.moveTo(from);
    path.cubicTo(at(0.2, sway), at(middle - 0.03, -0.06), at(middle - 0.07, 0.04));
    path.cubicTo(at(middle - 0.09, 0.1), at(middle - 0.16, 0.13), at(middle - 0.12, 0.2));
    path.cubicTo(at(middle - 0.08, 0.27), at(middle + 0.08, 0.27), at(middle + 0.12, 0.2));
    path.cubicTo(at(middle + 0.16, 0.13), at(middle + 0.09, 0.1), at(middle + 0.07, 0.04));
    path.cubicTo(at(middle + 0.03, -0.06), at(0.8, sway), to);
}

} // namespace

void jigsaw(Canvas &canvas, const QRectF &area, int columns, int rows, quint64 seed)
{
    Dice dice(seed);
    QList<QList<QPointF>> corners;
    for (int row = 0; row <= rows; ++row) {
        corners.append(QList<QPointF>());
        for (int column = 0; column <= columns; ++column) {
            const bool edge = row == 0 || row == rows || column == 0 || column == columns;
            const QPointF jitter = edge ? QPointF() : QPointF(dice.between(-9, 9), dice.between(-9, 9));
            corners.last().append(
                QPointF(area.left() + area.width() * column / columns, area.top() + area.height() * row / rows) +
                jitter);
        }
    }
    QPainterPath cuts;
    for (int row = 0; row <= rows; ++row)
        for (int column = 0; column <= columns; ++column) {
            if (column < columns && row > 0 && row < rows)
                cut(cuts, corners.at(row).at(column), corners.at(row).at(column + 1), dice);
            if (row < rows && column > 0 && column < columns)
                cut(cuts, corners.at(row).at(column), corners.at(row + 1).at(column), dice);
        }
    const auto clip = canvas.clipped(box(area));
    canvas.stroke(cuts.translated(1.6, 1.8), ink(0xFFFFFF, 0.28), 2);
    canvas.stroke(cuts, ink(0x10202C, 0.55), 2.2);
}

} // namespace vexal::sample
