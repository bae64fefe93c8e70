#include "creatures.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void crab(Canvas &canvas, const Skin &skin)
{
    canvas.fill(ellipse({0, 78}, 96, 12), ink(skin.dark.rgb(), 0.25));
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        canvas.stroke(outline("M50 34 C76 36 88 46 92 66 M46 46 C66 54 74 64 74 80 M38 54 C50 64 54 72 52 86"_L1),
                      skin.dark, 10);
        canvas.stroke(outline("M56 4 C76 -4 86 -18 84 -36"_L1), skin.main, 14);
        canvas.fill(outline("M66 -36 C50 -66 64 -98 92 -100 C82 -88 82 -78 88 -70 C92 -80 100 -88 112 -90 C122 -66 114 "
                            "-40 92 -30 C82 "
                            "-26 72 -28 66 -36 Z"_L1),
                    skin.main);
        canvas.fill(outline("M70 -44 C60 -66 70 -88 84 -95 C72 -76 74 -58 86 -42 Z"_L1), skin.light);
        canvas.stroke(outline("M20 -26 L24 -50"_L1), skin.main, 8);
        canvas.fill(circle({25, -56}, 15), Qt::white);
        eye(canvas, {24, -55}, 9);
    }
    canvas.fill(
        outline("M-74 6 C-66 -30 -34 -38 0 -38 C34 -38 66 -30 74 6 C76 40 40 62 0 62 C-40 62 -76 40 -74 6 Z"_L1),
        skin.main);
    canvas.fill(outline("M-60 -2 C-50 -24 -26 -30 0 -30 C26 -30 50 -24 60 -2 C30 -16 -30 -16 -60 -2 Z"_L1), skin.light);
    for (const QPointF dot :
         {QPointF(-44, 16), QPointF(-30, 30), QPointF(44, 16), QPointF(30, 30), QPointF(-40, 38), QPointF(40, 38)})
        canvas.fill(circle(dot, 4.6), ink(skin.dark.rgb(), 0.5));
    canvas.stroke(outline("M-18 20 Q0 38 18 20"_L1), ink(0x20262E), 4.4);
}

void octopus(Canvas &canvas, const Skin &skin)
{
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        canvas.stroke(outline("M42 26 C84 22 104 44 92 66 C84 80 66 72 72 58"_L1), mix(skin.main, skin.dark, 0.25), 21);
        canvas.stroke(outline("M32 36 C60 52 66 82 48 92 C34 98 26 84 36 76"_L1), skin.main, 21);
        canvas.stroke(outline("M12 40 C22 66 18 88 6 96"_L1), mix(skin.main, skin.dark, 0.14), 21);
        for (const QPointF dot : {QPointF(72, 30), QPointF(88, 42), QPointF(56, 62), QPointF(58, 78), QPointF(20, 66)})
            canvas.fill(circle(dot, 4.4), skin.light);
    }
    canvas.fill(outline("M-60 40 C-70 10 -74 -20 -66 -50 C-56 -92 -30 -106 0 -106 C30 -106 56 -92 66 -50 C74 -20 70 10 "
                        "60 40 C30 56 -30 56 "
                        "-60 40 Z"_L1),
                skin.main);
    canvas.fill(ellipse({-26, -76}, 21, 13), ink(mix(skin.light, Qt::white, 0.3).rgb(), 0.65));
    for (const QPointF dot : {QPointF(30, -80), QPointF(44, -64), QPointF(22, -64)})
        canvas.fill(circle(dot, 5.4), ink(skin.dark.rgb(), 0.32));
    for (const double x : {-25.0, 25.0}) {
        canvas.fill(circle({x, -20}, 17), Qt::white);
        eye(canvas, {x, -18}, 10.5);
        canvas.fill(ellipse({x * 1.7, 6}, 9, 6), skin.light);
    }
    canvas.stroke(outline("M-11 8 Q0 18 11 8"_L1), ink(0x20262E), 4);
}

void hermitCrab(Canvas &canvas, const Skin &skin)
{
    canvas.fill(ellipse({0, 88}, 98, 11), ink(skin.dark.rgb(), 0.25));
    const Skin shell{skin.light, mix(skin.light, Qt::white, 0.5), skin.dark};
    canvas.stroke(
        outline("M-20 60 C-36 66 -44 76 -46 90 M-40 56 C-60 60 -68 72 -70 88 M-4 62 C-14 70 -18 80 -18 92"_L1),
        skin.main, 10);
    {
        const auto up = canvas.placed({24, -16}, 0.86, 8);
        whelk(canvas, shell);
    }
    canvas.fill(outline("M-62 34 C-70 10 -46 0 -26 12 C-6 24 -4 58 -22 66 C-42 72 -58 58 -62 34 Z"_L1), skin.main);
    canvas.fill(
        outline(
            "M-66 56 C-92 50 -108 66 -100 88 C-94 80 -88 78 -82 80 C-84 86 -82 90 -78 94 C-62 90 -56 72 -66 56 Z"_L1),
        skin.main);
    canvas.stroke(outline("M-54 18 L-66 -14 M-38 12 L-40 -20"_L1), skin.main, 6);
    for (const QPointF at : {QPointF(-67, -20), QPointF(-40, -27)}) {
        canvas.fill(circle(at, 12), Qt::white);
        eye(canvas, at + QPointF(-1, 1), 7);
    }
    canvas.stroke(outline("M-50 44 Q-42 52 -32 46"_L1), ink(0x20262E), 3.6);
}

void turtle(Canvas &canvas, const Skin &skin)
{
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        canvas.fill(outline("M40 -40 C66 -76 100 -70 108 -30 C96 -34 78 -26 62 -8 Z"_L1), skin.main);
        canvas.fill(outline("M36 52 C58 60 72 80 62 98 C46 96 30 84 22 68 Z"_L1), skin.main);
    }
    canvas.fill(outline("M0 88 C6 96 6 104 0 110 C-6 104 -6 96 0 88 Z"_L1), skin.main);
    canvas.fill(outline("M-24 -62 C-28 -92 -18 -110 0 -110 C18 -110 28 -92 24 -62 Z"_L1), skin.main);
    eye(canvas, {-11, -88}, 5.6);
    eye(canvas, {11, -88}, 5.6);
    const QPainterPath shell = ellipse({0, 10}, 68, 82);
    canvas.fill(shell, skin.dark);
    const auto clip = canvas.clipped(shell);
    canvas.fill(ellipse({0, 10}, 60, 74), skin.light);
    const auto plate = [&](const QPolygonF &corners) {
        canvas.fill(polygon(corners), mix(skin.dark, skin.main, 0.55));
    };
    plate({{-20, -28}, {20, -28}, {30, 0}, {20, 28}, {-20, 28}, {-30, 0}});
    plate({{-18, -34}, {18, -34}, {30, -70}, {-30, -70}});
    plate({{-20, 34}, {20, 34}, {26, 54}, {0, 92}, {-26, 54}});
    plate({{-36, 0}, {-26, -30}, {-44, -62}, {-80, -20}, {-80, 4}});
    plate({{36, 0}, {26, -30}, {44, -62}, {80, -20}, {80, 4}});
    plate({{-36, 6}, {-26, 34}, {-34, 56}, {-56, 66}, {-80, 10}});
    plate({{36, 6}, {26, 34}, {34, 56}, {56, 66}, {80, 10}});
}

} // namespace vexal::sample
