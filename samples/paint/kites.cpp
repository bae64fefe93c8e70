#include "kites.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void kite(Canvas &canvas, QPointF at, double height, const QColor &light, const QColor &dark, double degrees)
{
    const auto placed = canvas.placed(at, height / 100, degrees);
    canvas.stroke(outline("M0 52 C18 76 -22 92 2 118 C18 136 -14 150 4 172"_L1), mix(dark, Qt::black, 0.1), 2);
    const struct
    {
        QPointF at;
        double turn;
    } bows[] = {{{2, 82}, 24}, {{-1, 112}, -30}, {{5, 140}, 20}, {{2, 168}, -14}};
    for (const auto &bow : bows) {
        const auto tied = canvas.placed(bow.at, 1, bow.turn);
        canvas.fill(outline("M0 0 L-13 -7 L-13 7 Z M0 0 L13 -7 L13 7 Z"_L1), light);
        canvas.fill(circle({0, 0}, 2.6), dark);
    }
    canvas.fill(polygon({{0, -50}, {-36, -10}, {0, 52}}), light);
    canvas.fill(polygon({{0, -50}, {36, -10}, {0, 52}}), dark);
    canvas.fill(polygon({{0, -10}, {-36, -10}, {0, 52}}), mix(light, dark, 0.55));
    canvas.fill(polygon({{0, -10}, {36, -10}, {0, 52}}), mix(dark, Qt::black, 0.16));
    canvas.stroke(outline("M0 -50 V52 M-36 -10 H36"_L1), ink(0xFFFFFF, 0.55), 1.4);
}

void fishKite(Canvas &canvas, QPointF at, double length, const QColor &scale, const QColor &belly, double degrees)
{
    const auto placed = canvas.placed(at, length / 200, degrees);
    const QPainterPath body =
        outline("M-90 -34 C-40 -46 30 -38 66 -12 L104 -36 C98 -12 98 12 104 36 L66 12 C30 38 -40 46 -90 34 C-80 "
                "14 -80 -14 -90 -34 Z"_L1);
    canvas.fill(body, scale);
    {
        const auto clip = canvas.clipped(body);
        canvas.fill(outline("M-96 14 C-40 30 30 24 70 6 L104 40 L-96 60 Z"_L1), belly);
        for (int row = 0; row < 5; ++row)
            for (int i = -2; i <= 2; ++i) {
                QPainterPath arc({-34.0 + 20 * row, 15.0 * i - 8 + (row % 2) * 7});
                arc.quadTo(-46.0 + 20 * row, 15.0 * i + (row % 2) * 7, -34.0 + 20 * row, 15.0 * i + 8 + (row % 2) * 7);
                canvas.stroke(arc, mix(scale, Qt::white, 0.42), 2.4);
            }
        canvas.fill(outline("M110 -40 L78 -16 L84 0 L78 16 L110 40 Z"_L1), mix(scale, Qt::black, 0.18));
    }
    canvas.fill(ellipse({-87, 0}, 8, 34), mix(scale, Qt::black, 0.3));
    canvas.fill(circle({-62, -12}, 11), Qt::white);
    canvas.fill(circle({-63, -12}, 6), ink(0x23303A));
    canvas.fill(outline("M-10 -42 C2 -62 28 -62 44 -44 L30 -32 Z"_L1), belly);
}

void wingKite(Canvas &canvas, QPointF at, double span, const QColor &light, const QColor &dark, double degrees)
{
    const auto placed = canvas.placed(at, span / 200, degrees);
    for (const double x : {-14.0, 0.0, 14.0})
        canvas.stroke(outline("M0 30 C10 52 -10 66 4 92"_L1).translated(x, 0), light, 4);
    canvas.fill(outline("M0 -46 C-34 -40 -74 -16 -100 24 C-60 14 -24 20 0 40 Z"_L1), light);
    canvas.fill(outline("M0 -46 C34 -40 74 -16 100 24 C60 14 24 20 0 40 Z"_L1), dark);
    canvas.fill(outline("M0 -46 C-12 -20 -12 14 0 40 C12 14 12 -20 0 -46 Z"_L1), mix(light, Qt::white, 0.45));
    canvas.fill(
        outline(
            "M-42 -24 C-50 -8 -56 6 -58 19 L-46 17 C-40 4 -34 -14 -32 -29 Z M42 -24 C50 -8 56 6 58 19 L46 17 C40 4 34 "
            "-14 32 -29 Z"_L1),
        mix(light, dark, 0.5));
}

void kiteLine(Canvas &canvas, QPointF kite, QPointF hand, const QColor &colour)
{
    QPainterPath line(kite);
    line.quadTo({(kite.x() * 0.35 + hand.x() * 0.65), (kite.y() + 2 * hand.y()) / 3 + 40}, hand);
    canvas.stroke(line, colour, 2.6);
}

void child(Canvas &canvas, QPointF at, double height, const QColor &coat, const QColor &hair)
{
    const auto placed = canvas.placed(at, height / 100);
    canvas.fill(outline("M-12 0 L-10 -30 L-1 -30 L-3 0 Z M4 0 L2 -30 L11 -30 L13 0 Z"_L1), ink(0x2E3A4C));
    canvas.stroke(outline("M12 -58 L28 -94"_L1), mix(coat, Qt::black, 0.12), 8);
    canvas.fill(circle({29.5, -97}, 4.4), ink(0xF0C9A6));
    canvas.stroke(outline("M-13 -56 L-20 -34"_L1), mix(coat, Qt::black, 0.12), 8);
    canvas.fill(outline("M-12 -66 C-4 -70 6 -70 13 -66 L20 -24 C8 -20 -8 -20 -19 -24 Z"_L1), coat);
    canvas.fill(circle({1, -80}, 14), ink(0xF0C9A6));
    canvas.fill(outline("M-14 -76 C-18 -98 20 -100 16 -76 C12 -70 -10 -70 -14 -76 Z"_L1), hair);
}

} // namespace vexal::sample
