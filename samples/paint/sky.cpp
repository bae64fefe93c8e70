#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void sky(Canvas &canvas, const QRectF &area, const QList<QColor> &inks)
{
    QLinearGradient fade(area.topLeft(), area.bottomLeft());
    for (qsizetype i = 0; i < inks.size(); ++i)
        fade.setColorAt(static_cast<double>(i) / static_cast<double>(inks.size() - 1), inks.at(i));
    canvas.fill(box(area), fade);
}

void stars(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour)
{
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const double fall = dice.between(0, 1);
        const QPointF at(area.x() + dice.between(0, area.width()), area.y() + fall * fall * area.height());
        const double size = dice.between(0.9, 2.7);
        QColor light = colour;
        light.setAlphaF(static_cast<float>(dice.between(0.35, 0.95) * (1 - 0.6 * fall)));
        if (dice.below(14) == 0)
            canvas.fill(star(at, size * 4.2, size * 0.8, 4), light);
        else
            canvas.fill(circle(at, size), light);
    }
}

void moon(Canvas &canvas, QPointF at, double radius, const Moonlight &light)
{
    canvas.fill(circle(at, radius * 1.7), mix(light.halo, ink(light.halo.rgb(), 0), 0.45));
    canvas.fill(circle(at, radius * 1.36), light.halo);
    QRadialGradient face(at + QPointF(-0.25, -0.3) * radius, radius * 1.5);
    face.setColorAt(0, mix(light.face, Qt::white, 0.35));
    face.setColorAt(0.55, light.face);
    face.setColorAt(1, light.shade);
    canvas.fill(circle(at, radius), face);
    if (!light.craters)
        return;
    const auto clip = canvas.clipped(circle(at, radius));
    const QColor dent = ink(mix(light.shade, light.face, 0.25).rgb(), 0.75);
    const QColor lip = ink(mix(light.face, Qt::white, 0.4).rgb(), 0.5);
    const struct
    {
        double x, y, r;
    } craters[] = {{-0.42, -0.18, 0.2},  {0.3, -0.42, 0.13}, {0.36, 0.24, 0.25}, {-0.14, 0.52, 0.15},
                   {-0.02, -0.04, 0.09}, {-0.62, 0.36, 0.1}, {0.7, -0.1, 0.08}};
    for (const auto &crater : craters) {
        const QPointF middle = at + QPointF(crater.x, crater.y) * radius;
        canvas.fill(circle(middle + QPointF(0.015, 0.02) * radius, crater.r * radius), lip);
        canvas.fill(circle(middle, crater.r * radius), dent);
    }
}

void sun(Canvas &canvas, QPointF at, double radius, const QColor &colour)
{
    glow(canvas, at, radius * 2.6, ink(colour.rgb(), 0.45));
    canvas.fill(circle(at, radius * 1.22), ink(colour.rgb(), 0.3));
    QLinearGradient face(at - QPointF(0, radius), at + QPointF(0, radius));
    face.setColorAt(0, mix(colour, Qt::white, 0.35));
    face.setColorAt(1, colour);
    canvas.fill(circle(at, radius), face);
}

void cloud(Canvas &canvas, QPointF at, double width, const QColor &colour)
{
    const auto placed = canvas.placed(at, width / 200);
    static const QPainterPath body =
        outline("M-92 0 C-112 0 -112 -30 -84 -32 C-84 -58 -50 -66 -36 -48 C-24 -84 34 -84 42 -46 "
                "C62 -60 88 -46 84 -26 C108 -26 108 0 92 0 Z"_L1);
    QLinearGradient fade(0, -76, 0, 4);
    fade.setColorAt(0, colour);
    fade.setColorAt(1, ink(colour.rgb(), colour.alphaF() * 0.55));
    canvas.fill(body, fade);
}

void mist(Canvas &canvas, const QRectF &area, const QColor &colour)
{
    sky(canvas, area, {ink(colour.rgb(), 0), colour});
}

void glow(Canvas &canvas, QPointF at, double radius, const QColor &colour)
{
    QRadialGradient light(at, radius);
    light.setColorAt(0, colour);
    light.setColorAt(0.45, ink(colour.rgb(), colour.alphaF() * 0.4));
    light.setColorAt(1, ink(colour.rgb(), 0));
    canvas.fill(circle(at, radius), light);
}

void fireflies(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour)
{
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const QPointF at(area.x() + dice.between(0, area.width()), area.y() + dice.between(0, area.height()));
        const double size = dice.between(2.5, 5);
        glow(canvas, at, size * 5, ink(colour.rgb(), 0.5));
        canvas.fill(circle(at, size), mix(colour, Qt::white, 0.5));
    }
}

void rain(Canvas &canvas, const QRectF &area, int count, quint64 seed, const QColor &colour)
{
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const QPointF at(area.x() + dice.between(0, area.width()), area.y() + dice.between(0, area.height()));
        const double length = dice.between(22, 56);
        QPainterPath drop(at);
        drop.lineTo(at + QPointF(-0.28 * length, length));
        canvas.stroke(drop, ink(colour.rgb(), dice.between(0.2, 0.55)), 3);
    }
}

void gull(Canvas &canvas, QPointF at, double width, const QColor &colour)
{
    const auto placed = canvas.placed(at, width / 40);
    canvas.fill(outline("M-20 -6 C-14 -12 -5 -9 0 0 C5 -9 14 -12 20 -6 C13 -8 6 -4 1 5 L-1 5 "
                        "C-6 -4 -13 -8 -20 -6 Z"_L1),
                colour);
}

} // namespace vexal::sample
