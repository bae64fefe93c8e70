#include "creatures.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void seahorse(Canvas &canvas, const Skin &skin)
{
    canvas.fill(outline("M36 -8 C62 -18 78 2 70 26 C64 42 46 42 34 30 Z"_L1), ink(skin.light.rgb(), 0.9));
    const QPainterPath tail = outline("M14 30 C24 70 4 92 -18 92 C-42 92 -48 62 -28 56 C-14 52 -8 66 -18 72"_L1);
    canvas.stroke(tail, skin.main, 19);
    canvas.fill(outline("M-20 -66 C-36 -20 -40 16 -14 44 C-2 58 24 58 32 40 C46 14 44 -20 28 -44 C40 -74 22 -104 -8 "
                        "-104 C-26 -104 -38 "
                        "-94 -42 -80 L-92 -72 C-98 -70 -98 -58 -92 -57 L-40 -56 C-34 -54 -26 -58 -20 -66 Z"_L1),
                skin.main);
    canvas.fill(outline("M-22 -44 C-36 -10 -34 22 -10 42 C6 50 14 30 6 8 C0 -14 -8 -34 -22 -44 Z"_L1), skin.light);
    for (int i = 0; i < 6; ++i)
        canvas.stroke(
            outline("M-28 0 Q-8 10 8 -2"_L1).translated(-1.5 + (i < 3 ? -1.0 * i : 1.5 * (i - 4)), -30 + 13.0 * i),
            ink(skin.dark.rgb(), 0.4), 3.6);
    for (const QPointF &tip :
         {QPointF(-14, -110), QPointF(6, -108), QPointF(24, -96), QPointF(34, -76), QPointF(36, -54)})
        canvas.fill(circle(tip, 8.6), skin.dark);
    canvas.fill(ellipse({-2, -76}, 17, 18), skin.light);
    eye(canvas, {-10, -80}, 9.4);
    canvas.fill(circle({-4, -58}, 6), ink(skin.dark.rgb(), 0.25));
}

void jellyfish(Canvas &canvas, const Skin &skin)
{
    for (int i = 0; i < 7; ++i) {
        QPainterPath arm({-57.0 + 19 * i, -6});
        const double way = i % 2 == 0 ? 16 : -16;
        arm.cubicTo(-57.0 + 19 * i + way, 24, -57.0 + 19 * i - way, 56, -54.0 + 18 * i + way * 0.4, 84 + 16 * (i % 3));
        canvas.stroke(arm, i % 2 == 0 ? ink(skin.light.rgb(), 0.9) : ink(skin.main.rgb(), 0.85), i % 2 == 0 ? 5 : 10);
    }
    const QPainterPath bell =
        outline("M-88 -6 C-92 -66 -50 -108 0 -108 C50 -108 92 -66 88 -6 C78 8 66 8 58 -4 C50 8 36 8 29 -4 C20 8 8 8 0 "
                "-4 C-8 8 -20 8 -29 -4 C-36 8 -50 8 -58 -4 C-66 8 -78 8 -88 -6 Z"_L1);
    QLinearGradient fade(0, -108, 0, 6);
    fade.setColorAt(0, skin.light);
    fade.setColorAt(1, skin.main);
    canvas.fill(bell, fade);
    const auto clip = canvas.clipped(bell);
    canvas.fill(ellipse({-32, -74}, 26, 15), ink(0xFFFFFF, 0.4));
    for (const double x : {-56.0, -18.0, 22.0, 58.0})
        canvas.fill(circle({x, -26}, 6), ink(skin.dark.rgb(), 0.3));
    eye(canvas, {-22, -42}, 8.4);
    eye(canvas, {22, -42}, 8.4);
    canvas.stroke(outline("M-9 -28 Q0 -20 9 -28"_L1), ink(0x20262E), 3.6);
}

void stripedFish(Canvas &canvas, const Skin &skin)
{
    canvas.fill(outline("M62 0 C82 -34 96 -44 108 -46 C102 -16 102 16 108 46 C96 44 82 34 62 0 Z"_L1), skin.dark);
    canvas.fill(outline("M-30 -54 C-8 -92 40 -88 54 -44 Z"_L1), skin.dark);
    canvas.fill(outline("M-20 52 C-4 82 32 78 42 44 Z"_L1), skin.dark);
    const QPainterPath body =
        outline("M-104 4 C-88 -46 -40 -66 0 -62 C40 -58 66 -30 78 0 C66 30 40 58 0 62 C-40 66 -88 48 -104 4 Z"_L1);
    canvas.fill(body, skin.main);
    {
        const auto clip = canvas.clipped(body);
        for (const double x : {-52.0, 0.0, 46.0}) {
            QPainterPath stripe({x - 11, -80});
            stripe.quadTo(x - 25, 0, x - 11, 80);
            stripe.lineTo(x + 11, 80);
            stripe.quadTo(x - 1, 0, x + 11, -80);
            canvas.fill(stripe, skin.light);
        }
        canvas.fill(outline("M-110 20 C-60 60 40 66 90 10 L90 90 L-110 90 Z"_L1), ink(skin.dark.rgb(), 0.16));
    }
    canvas.fill(outline("M4 6 C24 -8 44 0 44 16 C34 28 14 26 4 6 Z"_L1), skin.dark);
    canvas.fill(circle({-72, -12}, 13), Qt::white);
    eye(canvas, {-73, -11}, 8.4);
    canvas.stroke(outline("M-98 16 Q-88 24 -78 18"_L1), ink(0x20262E), 3.6);
}

void pufferfish(Canvas &canvas, const Skin &skin)
{
    canvas.fill(outline("M78 0 C92 -22 104 -26 112 -24 C106 -8 106 8 112 24 C104 26 92 22 78 0 Z"_L1), skin.dark);
    for (int i = 0; i < 22; ++i) {
        const auto turned = canvas.placed({0, 0}, 1, 360.0 / 22 * i + 4);
        canvas.fill(polygon({{-8, -76}, {0, -98}, {8, -76}}), mix(skin.main, skin.dark, 0.3));
    }
    const QPainterPath body = circle({0, 0}, 84);
    canvas.fill(body, skin.main);
    {
        const auto clip = canvas.clipped(body);
        canvas.fill(ellipse({0, 66}, 96, 62), skin.light);
        for (const QPointF dot : {QPointF(-20, -60), QPointF(14, -66), QPointF(42, -46), QPointF(58, -18),
                                  QPointF(-52, -44), QPointF(20, -40)})
            canvas.fill(circle(dot, 7), ink(skin.dark.rgb(), 0.55));
    }
    for (const double x : {-34.0, 34.0}) {
        canvas.fill(circle({x, -14}, 20), Qt::white);
        eye(canvas, {x, -13}, 12.4);
        canvas.fill(ellipse({x * 1.62, 14}, 10, 6), mix(skin.light, ink(0xE9785A), 0.5));
    }
    canvas.fill(ellipse({0, 20}, 13, 9), skin.dark);
    canvas.fill(ellipse({0, 20}, 7, 4), mix(skin.dark, Qt::black, 0.4));
    canvas.fill(outline("M-84 10 C-104 0 -112 12 -108 28 C-98 32 -88 26 -82 20 Z"_L1), skin.dark);
}

} // namespace vexal::sample
