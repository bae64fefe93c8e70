#include "creatures.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

void eye(Canvas &canvas, QPointF at, double radius, const QColor &colour)
{
    canvas.fill(circle(at, radius), colour);
    canvas.fill(circle(at + QPointF(0.3, -0.34) * radius, radius * 0.34), Qt::white);
}

void starfish(Canvas &canvas, const Skin &skin)
{
    canvas.fill(star({3, 9}, 108, 48, 5, 0.62), ink(skin.dark.rgb(), 0.3));
    canvas.fill(star({0, 0}, 108, 48, 5, 0.62), skin.main);
    canvas.fill(star({0, 0}, 84, 33, 5, 0.62), mix(skin.main, skin.light, 0.4));
    for (int arm = 0; arm < 5; ++arm) {
        const auto turned = canvas.placed({0, 0}, 1, 72 * arm);
        for (int i = 0; i < 5; ++i)
            canvas.fill(circle({0, -16.0 - 16 * i}, 5.4 - 0.75 * i), skin.light);
        for (const double side : {-1.0, 1.0})
            for (int i = 0; i < 3; ++i)
                canvas.fill(circle({side * (13 - 2.6 * i), -26.0 - 17 * i}, 3 - 0.4 * i), ink(skin.dark.rgb(), 0.5));
    }
    eye(canvas, {-15, -4}, 7);
    eye(canvas, {15, -4}, 7);
    canvas.stroke(outline("M-9 14 Q0 23 9 14"_L1), ink(0x20262E), 3.4);
}

void whelk(Canvas &canvas, const Skin &skin)
{
    const QPainterPath shell =
        outline("M-86 40 C-100 -10 -60 -64 -6 -70 C36 -92 86 -66 92 -22 C100 26 66 66 18 70 C-20 76 -66 86 -86 "
                "40 Z"_L1);
    canvas.fill(outline("M-98 74 C-60 56 60 56 104 76 C64 96 -60 96 -98 74 Z"_L1), ink(skin.dark.rgb(), 0.25));
    canvas.fill(shell, skin.main);
    {
        const auto clip = canvas.clipped(shell);
        const struct
        {
            double x, y, r;
        } turns[] = {{26, -4, 62}, {32, -8, 44}, {36, -10, 28}, {39, -12, 14}};
        bool even = true;
        for (const auto &turn : turns) {
            canvas.fill(circle({turn.x + 3, turn.y + 4}, turn.r), ink(skin.dark.rgb(), 0.35));
            canvas.fill(circle({turn.x, turn.y}, turn.r), even ? skin.light : skin.main);
            even = !even;
        }
        for (int i = 0; i < 6; ++i)
            canvas.stroke(outline("M-90 -30 C-70 -10 -64 30 -72 80"_L1).translated(19.0 * i, -3.0 * i),
                          ink(skin.dark.rgb(), 0.34), 4);
    }
    canvas.fill(outline("M-84 44 C-96 24 -90 2 -74 -4 C-58 6 -54 40 -62 62 C-72 62 -80 56 -84 44 Z"_L1),
                mix(skin.light, Qt::white, 0.45));
}

void scallop(Canvas &canvas, const Skin &skin)
{
    QPainterPath fan({-22, 84});
    for (int i = 0; i <= 8; ++i) {
        const double angle = qDegreesToRadians(200 + 17.5 * i);
        const QPointF rim = QPointF(0, 40) + 118 * QPointF(qCos(angle), qSin(angle));
        const double next = qDegreesToRadians(200 + 17.5 * (i - 0.5));
        const QPointF bulge = QPointF(0, 40) + 132 * QPointF(qCos(next), qSin(next));
        if (i == 0)
            fan.lineTo(rim);
        else
            fan.quadTo(bulge, rim);
    }
    fan.lineTo(22, 84);
    fan.closeSubpath();
    canvas.fill(outline("M-44 62 L44 62 L34 94 L-34 94 Z"_L1), mix(skin.main, skin.dark, 0.35));
    canvas.fill(fan, skin.main);
    const auto clip = canvas.clipped(fan);
    for (int i = 0; i < 8; ++i) {
        const double angle = qDegreesToRadians(208.75 + 17.5 * i);
        const QPointF way(qCos(angle), qSin(angle));
        const QPointF side(-way.y(), way.x());
        QPainterPath rib({0, 88});
        rib.lineTo(QPointF(0, 40) + 128 * way + 11 * side);
        rib.lineTo(QPointF(0, 40) + 128 * way - 11 * side);
        rib.closeSubpath();
        canvas.fill(rib, i % 2 == 0 ? skin.light : mix(skin.main, skin.light, 0.35));
    }
    for (const double radius : {64.0, 94.0})
        canvas.stroke(circle({0, 62}, radius), ink(skin.dark.rgb(), 0.24), 5);
}

void urchin(Canvas &canvas, const Skin &skin)
{
    for (int i = 0; i < 40; ++i) {
        const auto turned = canvas.placed({0, 6}, 1, 9.0 * i);
        const double length = i % 2 == 0 ? 106 : 88;
        canvas.fill(polygon({{-4.4, -40}, {0, -length}, {4.4, -40}}), i % 2 == 0 ? skin.dark : skin.main);
    }
    canvas.fill(circle({0, 6}, 64), skin.main);
    for (int arm = 0; arm < 10; ++arm) {
        const auto turned = canvas.placed({0, 6}, 1, 36.0 * arm);
        for (int i = 0; i < 3; ++i)
            canvas.fill(circle({0, -20.0 - 14 * i}, 3 + 0.7 * i), skin.light);
    }
    eye(canvas, {-17, 2}, 9);
    eye(canvas, {17, 2}, 9);
    canvas.stroke(outline("M-9 20 Q0 28 9 20"_L1), ink(0x20262E), 3.6);
}

void anemone(Canvas &canvas, const Skin &skin)
{
    canvas.fill(ellipse({0, 96}, 88, 15), ink(skin.dark.rgb(), 0.3));
    for (int i = 0; i < 15; ++i) {
        const double lean = -78 + 156.0 * i / 14;
        const auto turned = canvas.placed({lean * 0.5, 0}, 1, lean * 0.72);
        const double length = 84 + 14 * (i % 3);
        QPainterPath arm({0, 20});
        arm.cubicTo(14, -length * 0.3, i % 2 == 0 ? -16 : 16, -length * 0.6, i % 2 == 0 ? 6 : -6, -length);
        canvas.stroke(arm, i % 2 == 0 ? skin.main : mix(skin.main, skin.dark, 0.3), 13);
        canvas.fill(circle({i % 2 == 0 ? 6.0 : -6.0, -length}, 9), skin.light);
    }
    canvas.fill(outline("M-62 6 C-46 -10 46 -10 62 6 C58 40 62 74 76 98 L-76 98 C-62 74 -58 40 -62 6 Z"_L1), skin.main);
    for (const double x : {-34.0, 0.0, 34.0})
        canvas.fill(outline("M-7 6 C-4 40 -6 70 -10 96 L10 96 C6 70 4 40 7 6 Z"_L1).translated(x, 0),
                    mix(skin.main, skin.dark, 0.22));
    canvas.fill(ellipse({0, 6}, 60, 15), skin.dark);
    canvas.fill(ellipse({0, 4}, 46, 9), mix(skin.dark, Qt::black, 0.25));
}

void coral(Canvas &canvas, const Skin &skin)
{
    canvas.fill(outline("M-96 100 C-70 74 70 70 98 100 Z"_L1), ink(skin.dark.rgb(), 0.45));
    const QPainterPath limbs =
        outline("M0 96 C-4 50 2 10 -6 -40 M-4 40 C-30 20 -46 -6 -46 -44 M-38 0 C-58 -8 -74 -26 -78 -54 "
                "M0 20 C26 4 40 -20 40 -62 M34 -10 C56 -16 74 -30 82 -60 M-6 -30 C-8 -60 -16 -80 -20 -94 "
                "M-4 -36 C6 -58 12 -78 12 -100 M60 -22 C66 4 80 8 94 2 M-46 -30 C-36 -52 -38 -70 -44 -84"_L1);
    canvas.stroke(limbs.translated(4, 3), skin.dark, 21);
    canvas.stroke(limbs, skin.main, 19);
    canvas.stroke(limbs.translated(-3, -3), mix(skin.main, skin.light, 0.55), 5);
    const auto small = canvas.placed({50, 44}, 0.42);
    stripedFish(canvas, {skin.light, Qt::white, skin.dark});
}

void oyster(Canvas &canvas, const Skin &skin)
{
    canvas.fill(ellipse({0, 96}, 98, 13), ink(skin.dark.rgb(), 0.28));
    const QPainterPath upper =
        outline("M-98 30 C-110 -40 -70 -104 0 -106 C70 -104 110 -40 98 30 C60 52 -60 52 -98 30 Z"_L1);
    canvas.fill(upper, skin.main);
    {
        const auto clip = canvas.clipped(upper);
        for (int i = -4; i <= 4; ++i) {
            QPainterPath rib({12.0 * i, 50});
            rib.quadTo(20.0 * i, -40, 27.0 * i, -116);
            canvas.stroke(rib, ink(skin.dark.rgb(), 0.4), 6);
        }
        canvas.fill(ellipse({0, 44}, 88, 60), mix(skin.light, Qt::white, 0.3));
        canvas.fill(ellipse({0, 56}, 76, 50), skin.light);
    }
    canvas.fill(circle({0, 34}, 31), ink(0xFDF8EE));
    canvas.fill(circle({-9, 24}, 10), ink(0xFFFFFF));
    canvas.stroke(outline("M-20 52 Q0 66 22 48"_L1), ink(0xCFC2C8, 0.8), 4);
    canvas.fill(outline("M-104 34 C-84 56 -40 50 -22 60 C-8 66 8 66 22 60 C40 50 84 56 104 34 C104 76 66 102 0 102 "
                        "C-66 102 -104 76 "
                        "-104 34 Z"_L1),
                mix(skin.main, skin.dark, 0.25));
    canvas.stroke(outline("M-84 66 C-50 88 50 88 84 66"_L1), ink(skin.light.rgb(), 0.6), 5);
}

} // namespace vexal::sample
