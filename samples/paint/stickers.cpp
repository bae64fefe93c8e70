#include "stickers.h"

#include "creatures.h"
#include "sky.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

void mushroom(Canvas &canvas, QPointF at, double height, const QColor &cap)
{
    const auto placed = canvas.placed(at, height / 130);
    canvas.fill(outline("M-20 0 C-14 -24 -14 -44 -18 -64 L18 -64 C14 -44 14 -24 20 0 C10 6 -10 6 -20 0 Z"_L1),
                ink(0xFBF0DC));
    canvas.fill(outline("M4 -64 L18 -64 C14 -44 14 -24 20 0 C14 4 8 4 4 4 Z"_L1), ink(0xE6D5B8));
    const QPainterPath top =
        outline("M-66 -56 C-70 -104 -30 -130 0 -130 C30 -130 70 -104 66 -56 C40 -46 -40 -46 -66 -56 Z"_L1);
    canvas.fill(top, cap);
    const auto clip = canvas.clipped(top);
    canvas.fill(outline("M14 -132 C60 -120 74 -80 68 -50 L30 -48 C48 -80 40 -110 14 -132 Z"_L1), ink(0x000000, 0.1));
    for (const auto &[x, y, r] : {std::tuple(-34, -80, 12), std::tuple(2, -104, 14), std::tuple(34, -76, 10),
                                  std::tuple(-2, -68, 7), std::tuple(-52, -62, 6)})
        canvas.fill(circle(QPointF(x, y), r), ink(0xFFF8EA));
}

void moonflower(Canvas &canvas, QPointF at, double height, const QColor &petal)
{
    const auto placed = canvas.placed(at, height / 160);
    canvas.stroke(outline("M0 0 C-8 -30 8 -60 0 -96"_L1), ink(0x4F7F5A), 7);
    canvas.fill(
        outline(
            "M-2 -30 C-30 -36 -46 -56 -48 -74 C-26 -70 -8 -54 -1 -38 Z M3 -18 C26 -22 42 -38 46 -56 C26 -54 8 -42 2 -26 Z"_L1),
        ink(0x5F9468));
    for (int i = 0; i < 6; ++i) {
        const auto turned = canvas.placed({0, -108}, 1, 60.0 * i);
        canvas.fill(outline("M0 0 C-22 -12 -22 -42 0 -52 C22 -42 22 -12 0 0 Z"_L1),
                    i % 2 == 0 ? petal : mix(petal, Qt::white, 0.3));
    }
    canvas.fill(circle({0, -108}, 14), ink(0xF6C94E));
    canvas.fill(circle({-4, -112}, 4), ink(0xFFFFFF, 0.6));
}

void bee(Canvas &canvas, QPointF at, double width)
{
    const auto placed = canvas.placed(at, width / 120);
    canvas.fill(ellipse({-8, -38}, 20, 28), ink(0xE3F0F4, 0.95));
    canvas.fill(ellipse({20, -36}, 17, 25), ink(0xCFE4EC, 0.95));
    const QPainterPath body = ellipse({0, 0}, 52, 34);
    canvas.fill(body, ink(0xF4C03C));
    {
        const auto clip = canvas.clipped(body);
        for (const double x : {-34.0, -4.0, 26.0})
            canvas.fill(box({x - 8, -40, 15, 80}), ink(0x2E2623));
    }
    canvas.fill(polygon({{-50, -5}, {-64, 0}, {-50, 5}}), ink(0x2E2623));
    canvas.fill(circle({44, -4}, 20), ink(0x2E2623));
    canvas.fill(circle({50, -8}, 6), Qt::white);
    canvas.stroke(outline("M46 -22 C48 -34 56 -38 62 -36 M38 -22 C36 -36 42 -44 50 -44"_L1), ink(0x2E2623), 3.4);
}

void wateringCan(Canvas &canvas, QPointF at, double width, const QColor &tin)
{
    const auto placed = canvas.placed(at, width / 200);
    canvas.stroke(outline("M-40 -96 C-100 -104 -100 -14 -44 -18"_L1), mix(tin, Qt::black, 0.2), 11);
    canvas.fill(outline("M42 -30 L92 -92 L102 -84 L56 -10 Z"_L1), mix(tin, Qt::black, 0.14));
    canvas.fill(polygon({{82, -102}, {112, -78}, {104, -68}, {74, -92}}), mix(tin, Qt::white, 0.2));
    canvas.fill(outline("M-46 -100 L34 -100 L48 0 L-58 0 Z"_L1), tin);
    canvas.fill(outline("M10 -100 L34 -100 L48 0 L16 0 Z"_L1), mix(tin, Qt::black, 0.12));
    canvas.fill(ellipse({-6, -100}, 40, 10), mix(tin, Qt::black, 0.35));
    canvas.fill(box({-54, -52, 102, 9}), mix(tin, Qt::white, 0.35));
    for (const QPointF drop : {QPointF(112, -56), QPointF(124, -38), QPointF(106, -30), QPointF(120, -10)})
        canvas.fill(outline("M0 -10 C6 -2 6 6 0 6 C-6 6 -6 -2 0 -10 Z"_L1).translated(drop), ink(0x6FB6D8));
}

void crescent(Canvas &canvas, QPointF at, double radius, const QColor &gold)
{
    const auto placed = canvas.placed(at, radius / 100);
    const QPainterPath moon = circle({0, 0}, 100) - circle({46, -16}, 82);
    QLinearGradient shine(-90, -80, 40, 90);
    shine.setColorAt(0, mix(gold, Qt::white, 0.45));
    shine.setColorAt(0.6, gold);
    shine.setColorAt(1, mix(gold, ink(0x6B4A1E), 0.3));
    canvas.fill(moon, shine);
    canvas.stroke(outline("M-66 -8 Q-56 2 -46 -8"_L1), ink(0x4A3418), 4.6);
    canvas.fill(circle({-56, 22}, 7), ink(0xE9785A, 0.5));
    canvas.stroke(outline("M-50 34 Q-40 42 -30 36"_L1), ink(0x4A3418), 4);
}

void tram(Canvas &canvas, QPointF at, double width, const QColor &paint, const QColor &window)
{
    const auto placed = canvas.placed(at, width / 400);
    canvas.stroke(outline("M-20 -196 L10 -240 L50 -240 L20 -196"_L1), ink(0x33333B), 5);
    canvas.fill(outline("M-188 -176 C-184 -200 184 -200 188 -176 Z"_L1), mix(paint, Qt::black, 0.35));
    canvas.fill(box({-196, -178, 392, 150}, 20), paint);
    canvas.fill(box({-196, -84, 392, 16}), ink(0xF6E8C8));
    for (int i = 0; i < 6; ++i) {
        const double x = -180 + 61.0 * i;
        if (i == 2 || i == 5) {
            canvas.fill(box({x, -164, 48, 128}, 6), mix(paint, Qt::black, 0.25));
            canvas.fill(box({x + 6, -158, 36, 84}, 4), window);
            continue;
        }
        canvas.fill(box({x, -160, 50, 66}, 6), window);
        canvas.stroke(outline("M0 0 H50"_L1).translated(x, -138), mix(paint, Qt::black, 0.3), 3, Qt::FlatCap);
        canvas.fill(outline("M12 66 C12 40 38 40 38 66 Z"_L1).translated(x, -160), mix(paint, Qt::black, 0.5));
        canvas.fill(circle({x + 25, -121}, 9), ink(0x6B4A3E));
    }
    canvas.fill(box({-176, -30, 352, 14}, 4), ink(0x2E2E38));
    for (const double x : {-126.0, -80.0, 80.0, 126.0}) {
        canvas.fill(circle({x, -14}, 19), ink(0x23232B));
        canvas.fill(circle({x, -14}, 8), ink(0x8A8A94));
    }
    glow(canvas, {198, -54}, 60, ink(0xFFE39A, 0.6));
    canvas.fill(circle({192, -54}, 9), ink(0xFFF3C9));
    canvas.fill(box({-46, -204, 92, 24}, 5), ink(0x23303F));
}

} // namespace vexal::sample
