#include "owl.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

void feet(Canvas &canvas, const Plumage &plumage)
{
    const QPainterPath toes =
        outline("M-52 118 C-58 136 -58 150 -52 156 C-46 150 -46 140 -44 134 C-42 144 -42 154 -36 158 "
                "C-30 154 -30 142 -30 134 C-28 142 -26 152 -20 156 C-14 148 -18 132 -24 118 Z"_L1);
    canvas.fill(toes, plumage.beak);
    canvas.fill(mirrored(toes), plumage.beak);
}

void breast(Canvas &canvas, const Plumage &plumage)
{
    const QPainterPath front = ellipse({0, 42}, 64, 86);
    canvas.fill(front, plumage.front);
    const auto clip = canvas.clipped(front);
    const QColor feather = mix(plumage.front, plumage.back, 0.42);
    for (int row = 0; row < 6; ++row)
        for (int i = -3; i <= 3; ++i) {
            const double x = 30.0 * i + (row % 2 == 0 ? 0 : 15);
            const double y = -22 + 24.0 * row;
            QPainterPath scallop({x - 9, y});
            scallop.quadTo(x, y + 15, x + 9, y);
            canvas.stroke(scallop, feather, 4.4);
        }
}

void eyes(Canvas &canvas, const Plumage &plumage)
{
    for (const double x : {-44.0, 44.0}) {
        canvas.fill(circle({x, -72}, 47), mix(plumage.back, plumage.face, 0.35));
        canvas.fill(circle({x, -72}, 41), plumage.face);
        canvas.fill(circle({x * 0.86, -72}, 25), plumage.beak);
        canvas.fill(circle({x * 0.86, -72}, 20.5), plumage.eye);
        canvas.fill(circle({x * 0.86 + 7, -80}, 7), Qt::white);
        canvas.fill(circle({x * 0.86 - 7, -64}, 3), ink(0xFFFFFF, 0.7));
    }
    canvas.fill(outline("M-13 -62 C-6 -70 6 -70 13 -62 C12 -46 6 -34 0 -26 C-6 -34 -12 -46 -13 -62 Z"_L1),
                plumage.beak);
    canvas.fill(outline("M0 -67 C6 -68 10 -66 13 -62 C12 -46 6 -34 0 -26 Z"_L1), mix(plumage.beak, Qt::black, 0.14));
}

} // namespace

void owl(Canvas &canvas, QPointF at, double height, const Plumage &plumage)
{
    const auto placed = canvas.placed(at, height / 326);
    const auto up = canvas.placed({0, -150});
    feet(canvas, plumage);
    const QPainterPath tuft = outline("M-102 -92 C-108 -126 -112 -150 -116 -174 C-88 -162 -58 -146 -34 -124 Z"_L1);
    canvas.fill(tuft, plumage.wing);
    canvas.fill(mirrored(tuft), plumage.wing);
    canvas.fill(
        outline("M-102 -96 C-112 -30 -108 66 -74 112 C-50 144 50 144 74 112 C108 66 112 -30 102 -96 C66 -142 -66 -142 "
                "-102 -96 Z"_L1),
        plumage.back);
    const QPainterPath wing = outline("M-103 -60 C-134 0 -128 84 -82 122 C-78 76 -72 20 -88 -30 Z"_L1);
    for (const QPainterPath &side : {wing, mirrored(wing)}) {
        canvas.fill(side, plumage.wing);
        const auto clip = canvas.clipped(side);
        for (int row = 0; row < 3; ++row)
            canvas.stroke(ellipse({0, 20.0 + 34 * row}, 124 - 10.0 * row, 70), mix(plumage.wing, Qt::white, 0.12), 4);
    }
    breast(canvas, plumage);
    canvas.fill(outline("M-60 -118 C-30 -104 -14 -84 0 -62 C14 -84 30 -104 60 -118 C24 -134 -24 -134 -60 -118 Z"_L1),
                plumage.wing);
    eyes(canvas, plumage);
}

void branch(Canvas &canvas, QPointF at, double width, const QColor &wood, const QColor &leaf)
{
    const auto placed = canvas.placed(at, width / 600);
    canvas.fill(
        outline("M-300 26 C-220 -4 -120 4 -20 0 C80 -4 200 -18 300 -44 L304 -34 C220 -6 120 14 10 20 C-110 26 -210 22 "
                "-296 40 Z"_L1),
        wood);
    canvas.fill(outline("M-210 10 C-240 -10 -256 -30 -262 -54 C-246 -36 -226 -22 -196 -8 Z"_L1), wood);
    canvas.fill(outline("M190 -14 C214 4 236 10 262 12 C236 20 206 14 176 0 Z"_L1), wood);
    const QPainterPath blade = outline("M0 0 C14 -24 46 -28 68 -12 C50 8 22 14 0 0 Z"_L1);
    const struct
    {
        QPointF at;
        double turn;
        double size;
    } leaves[] = {{{-262, -54}, -118, 0.9}, {{-240, -26}, 168, 0.75}, {{262, 12}, 22, 0.95}, {{232, -20}, -52, 0.85},
                  {{298, -40}, -14, 0.9},   {{-292, 32}, 150, 0.9},   {{-150, 4}, -80, 0.6}};
    for (const auto &one : leaves) {
        const auto turned = canvas.placed(one.at, one.size, one.turn);
        canvas.fill(blade, leaf);
        canvas.stroke(outline("M4 -1 C24 -10 44 -12 60 -11"_L1), mix(leaf, Qt::black, 0.22), 2.4);
    }
}

void waxSeal(Canvas &canvas, QPointF at, double radius, const QColor &wax)
{
    const auto placed = canvas.placed(at, radius / 30);
    canvas.fill(star({1, 2}, 31, 27.5, 9, 0.9, -70), mix(wax, Qt::black, 0.22));
    canvas.fill(star({0, 0}, 31, 27.5, 9, 0.9, -70), wax);
    canvas.stroke(circle({0, 0}, 19), mix(wax, Qt::black, 0.2), 2.4);
    canvas.fill(star({0, 0}, 13, 6, 5, 0.3), mix(wax, Qt::white, 0.22));
}

void letter(Canvas &canvas, QPointF at, double width, double degrees, const QColor &paper, const QColor &wax)
{
    const auto placed = canvas.placed(at, width / 220, degrees);
    canvas.fill(box({-107, -69, 220, 146}, 6), ink(0x000000, 0.14));
    canvas.fill(box({-110, -74, 220, 146}, 6), paper);
    canvas.fill(polygon({{-110, 70}, {-8, -8}, {8, -8}, {110, 70}}), mix(paper, Qt::black, 0.045));
    canvas.fill(outline("M-110 -72 L110 -72 L12 10 C5 16 -5 16 -12 10 Z"_L1), mix(paper, ink(0xC9A66B), 0.28));
    canvas.stroke(outline("M-106 -70 L-12 10 C-5 16 5 16 12 10 L106 -70"_L1), mix(paper, ink(0x9A7B4C), 0.5), 2);
    if (wax.isValid())
        waxSeal(canvas, {0, 12}, 26, wax);
}

} // namespace vexal::sample
