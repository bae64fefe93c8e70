#include "bread.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void loaf(Canvas &canvas, QPointF at, double width, const QColor &crust)
{
    const auto placed = canvas.placed(at, width / 400);
    const QPainterPath whole =
        outline("M-196 -40 C-214 -130 -120 -222 0 -222 C120 -222 214 -130 196 -40 C190 -8 150 6 0 6 C-150 6 -190 "
                "-8 -196 -40 Z"_L1);
    canvas.fill(ellipse({0, 4}, 206, 17), ink(0x000000, 0.18));
    QLinearGradient bake(-60, -222, 60, 10);
    bake.setColorAt(0, mix(crust, ink(0xFBD58A), 0.5));
    bake.setColorAt(0.5, crust);
    bake.setColorAt(1, mix(crust, ink(0x4A2412), 0.42));
    canvas.fill(whole, bake);
    const auto clip = canvas.clipped(whole);
    canvas.fill(outline("M-200 -30 C-150 0 150 0 200 -30 L200 20 L-200 20 Z"_L1), ink(0x4A2412, 0.2));
    const QPainterPath cut =
        outline("M0 -96 C-26 -130 -22 -176 10 -204 C44 -188 50 -138 26 -100 C18 -90 6 -88 0 -96 Z"_L1);
    for (const double x : {-118.0, -42.0, 34.0, 108.0}) {
        const auto turned = canvas.placed({x, 14 + x * x / 900}, 1, x / 8);
        canvas.fill(cut.translated(3, 5), ink(0x5A2C14, 0.4));
        canvas.fill(cut, mix(crust, ink(0xFCEBC0), 0.72));
        canvas.stroke(outline("M4 -104 C-12 -132 -8 -166 12 -190"_L1), ink(0xFFFFFF, 0.35), 5);
    }
    Dice dice(811);
    for (int i = 0; i < 70; ++i)
        canvas.fill(ellipse({dice.between(-170, 170), dice.between(-200, -30)}, 2.6, 1.8),
                    ink(0xFFF6DC, dice.between(0.3, 0.8)));
}

void slice(Canvas &canvas, QPointF at, double width, const QColor &crust, double degrees)
{
    const auto placed = canvas.placed(at, width / 200, degrees);
    const QPainterPath whole =
        outline("M-76 90 L-76 -10 C-116 -34 -98 -92 -40 -90 C-20 -92 20 -92 40 -90 C98 -92 116 -34 76 -10 L76 90 C50 "
                "98 -50 98 -76 90 Z"_L1);
    canvas.fill(whole, crust);
    const auto inner = canvas.placed({0, 0}, 0.87);
    canvas.fill(whole, mix(crust, ink(0xFDF1D2), 0.84));
    Dice dice(812);
    for (int i = 0; i < 26; ++i)
        canvas.fill(ellipse({dice.between(-62, 62), dice.between(-70, 76)}, dice.between(2, 6), dice.between(2, 4)),
                    ink(mix(crust, ink(0xFBE4B4), 0.5).rgb(), 0.7));
}

void wheat(Canvas &canvas, QPointF at, double height, const QColor &ear, double degrees)
{
    const auto placed = canvas.placed(at, height / 200, degrees);
    canvas.stroke(outline("M0 0 C-4 -60 4 -100 0 -190"_L1), mix(ear, ink(0x7A8A3A), 0.4), 4);
    canvas.fill(outline("M-1 -40 C-30 -56 -40 -80 -42 -100 C-24 -92 -8 -72 0 -50 Z"_L1), mix(ear, ink(0x7A8A3A), 0.45));
    const QPainterPath grain = outline("M0 0 C-3 -14 6 -26 16 -32 C20 -20 14 -6 0 0 Z"_L1);
    for (int i = 0; i < 6; ++i) {
        const double y = -104 - 16.0 * i;
        const double size = 1 - 0.06 * i;
        const auto level = canvas.placed({0, y}, size);
        canvas.fill(grain, ear);
        canvas.fill(mirrored(grain), mix(ear, Qt::white, 0.2));
        canvas.stroke(outline("M16 -32 L28 -58 M-16 -32 L-28 -58"_L1), ink(ear.rgb(), 0.7), 1.8);
    }
    canvas.fill(ellipse({0, -206}, 6, 14), mix(ear, Qt::white, 0.12));
}

void steam(Canvas &canvas, QPointF at, double height, const QColor &colour)
{
    const auto placed = canvas.placed(at, height / 200);
    for (const auto &[x, tall] : {std::pair(-62.0, 0.8), std::pair(0.0, 1.0), std::pair(62.0, 0.74)}) {
        const auto one = canvas.placed({x, 0}, tall);
        canvas.stroke(outline("M0 0 C-34 -40 34 -80 0 -120 C-26 -150 14 -172 4 -200"_L1), colour, 11);
    }
}

void ladder(Canvas &canvas, QPointF foot, QPointF top, double width, const QColor &wood)
{
    const QPointF side(width / 2, 0);
    QPainterPath rungs;
    for (int i = 1; i < 14; ++i) {
        const QPointF at = foot + (top - foot) * (i / 14.0);
        rungs.moveTo(at - side);
        rungs.lineTo(at + side);
    }
    canvas.stroke(rungs, mix(wood, Qt::black, 0.15), width * 0.12);
    QPainterPath rails(foot - side);
    rails.lineTo(top - side);
    rails.moveTo(foot + side);
    rails.lineTo(top + side);
    canvas.stroke(rails, wood, width * 0.16);
}

} // namespace vexal::sample
