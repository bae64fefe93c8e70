#include "moth.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

void eyespot(Canvas &canvas, QPointF at, double radius, const Wings &wings)
{
    canvas.fill(circle(at, radius * 1.22), wings.edge);
    canvas.fill(circle(at, radius), wings.ring);
    canvas.fill(circle(at, radius * 0.68), wings.spot);
    canvas.fill(circle(at, radius * 0.36), mix(wings.ring, Qt::black, 0.45));
    canvas.fill(circle(at + QPointF(-0.16, -0.18) * radius, radius * 0.13), ink(0xFFFFFF, 0.9));
}

void rays(Canvas &canvas, QPointF from, double start, double end, double length, const QColor &colour)
{
    for (int i = 0; i < 9; ++i) {
        const double angle = qDegreesToRadians(start + (end - start) * i / 8);
        QPainterPath ray(from);
        ray.quadTo(from + 0.5 * length * QPointF(qCos(angle + 0.07), qSin(angle + 0.07)),
                   from + length * QPointF(qCos(angle), qSin(angle)));
        canvas.stroke(ray, colour, 2);
    }
}

void hindwing(Canvas &canvas, const Wings &wings)
{
    const QPainterPath whole =
        outline("M6 -6 C60 -8 150 6 176 44 C196 76 176 122 150 128 C142 148 112 152 96 138 C56 132 22 "
                "84 6 34 Z"_L1);
    canvas.fill(whole, wings.edge);
    const auto clip = canvas.clipped(whole);
    const auto inner = canvas.placed({0, -3}, 0.9);
    canvas.fill(whole, wings.hind);
    rays(canvas, {8, 4}, 4, 74, 190, ink(wings.ring.rgb(), 0.2));
    canvas.stroke(outline("M176 40 C160 82 128 112 84 136"_L1), wings.band, 9);
    canvas.stroke(outline("M150 34 C136 68 108 96 66 114"_L1), ink(wings.ring.rgb(), 0.55), 4);
    eyespot(canvas, {108, 66}, 21, wings);
}

void forewing(Canvas &canvas, const Wings &wings)
{
    const QPainterPath whole =
        outline("M4 -34 C46 -108 146 -170 262 -158 C286 -154 288 -132 276 -108 C272 -76 250 -56 236 -40 "
                "C196 -4 120 10 60 10 C30 10 10 4 4 -4 Z"_L1);
    canvas.fill(whole, wings.edge);
    const auto clip = canvas.clipped(whole);
    {
        const auto inner = canvas.placed({0, -3}, 0.93);
        QLinearGradient fade(0, 0, 270, -120);
        fade.setColorAt(0, mix(wings.wing, wings.band, 0.35));
        fade.setColorAt(0.5, wings.wing);
        fade.setColorAt(1, mix(wings.wing, wings.ring, 0.18));
        canvas.fill(whole, fade);
    }
    rays(canvas, {4, -18}, -46, 2, 300, ink(wings.ring.rgb(), 0.22));
    canvas.stroke(outline("M250 -172 C206 -132 190 -70 214 -10"_L1), wings.band, 20);
    canvas.stroke(outline("M226 -180 C182 -132 166 -66 190 -2"_L1), ink(wings.ring.rgb(), 0.7), 5);
    canvas.stroke(outline("M96 -120 C70 -80 66 -30 84 16"_L1), wings.band, 12);
    canvas.stroke(outline("M78 -112 C52 -76 50 -30 66 16"_L1), ink(wings.ring.rgb(), 0.55), 4);
    for (int i = 0; i < 6; ++i)
        canvas.fill(circle({270 - 7.4 * i, -142 + 22.0 * i}, 6), ink(wings.ring.rgb(), 0.6));
    eyespot(canvas, {142, -70}, 30, wings);
}

void trunk(Canvas &canvas, const Wings &wings)
{
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        canvas.stroke(outline("M5 -74 C22 -104 44 -122 66 -126"_L1), wings.body, 3.4);
        for (int i = 1; i < 8; ++i) {
            const QPointF root = QPointF(5, -74) + QPointF(7.6 * i, -16.0 * i + 1.15 * i * i);
            QPainterPath hair(root);
            hair.lineTo(root + QPointF(-3, -14 + i));
            canvas.stroke(hair, wings.body, 2);
            QPainterPath other(root);
            other.lineTo(root + QPointF(11 - i * 0.6, 2));
            canvas.stroke(other, wings.body, 2);
        }
    }
    canvas.fill(outline("M0 104 C-13 84 -17 36 -15 0 L15 0 C17 36 13 84 0 104 Z"_L1), wings.body);
    for (int i = 0; i < 5; ++i)
        canvas.stroke(outline("M-13 0 Q0 7 13 0"_L1).translated(0, 18 + 15.0 * i), ink(wings.band.rgb(), 0.55), 3.4);
    canvas.fill(ellipse({0, -22}, 20, 36), wings.body);
    canvas.fill(outline("M-19 -34 C-10 -20 10 -20 19 -34 C20 -50 10 -58 0 -58 C-10 -58 -20 -50 -19 -34 Z"_L1),
                wings.band);
    canvas.fill(circle({0, -66}, 13), wings.body);
    canvas.fill(circle({-7, -69}, 3), wings.spot);
    canvas.fill(circle({7, -69}, 3), wings.spot);
}

} // namespace

void moth(Canvas &canvas, QPointF at, double span, const Wings &wings, double degrees)
{
    const auto placed = canvas.placed(at, span / 564, degrees);
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        hindwing(canvas, wings);
        forewing(canvas, wings);
    }
    trunk(canvas, wings);
}

void littleMoth(Canvas &canvas, QPointF at, double span, const QColor &wing, double degrees)
{
    const auto placed = canvas.placed(at, span / 60, degrees);
    const QPainterPath upper = outline("M2 -2 C8 -18 22 -24 30 -20 C32 -8 20 2 3 4 Z"_L1);
    const QPainterPath lower = outline("M2 2 C12 2 22 6 20 14 C14 20 5 14 2 8 Z"_L1);
    for (const bool right : {false, true}) {
        const auto side = right ? canvas.placed({0, 0}) : canvas.mirrored({0, 0});
        canvas.fill(lower, mix(wing, Qt::black, 0.14));
        canvas.fill(upper, wing);
        canvas.fill(circle({19, -11}, 3.4), mix(wing, Qt::black, 0.32));
        canvas.stroke(outline("M1 -6 Q4 -14 9 -16"_L1), mix(wing, Qt::black, 0.45), 1.3);
    }
    canvas.fill(ellipse({0, 2}, 2.8, 10), mix(wing, Qt::black, 0.5));
}

} // namespace vexal::sample
