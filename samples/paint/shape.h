#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>

/// Outlines and colours: what painted things are made of.
namespace vexal::sample {

/// An ink from its sRGB code, 0xRRGGBB.
QColor ink(QRgb code, double opacity = 1);

/// The ink between two others: 0 is the first, 1 the second.
QColor mix(const QColor &from, const QColor &to, double share);

/// The outline that the path letters M, L, H, V, C, Q, A-less SVG data and Z describe, capital letters only.
/// Data that is not of this form is a mistake of the program and stops it.
QPainterPath outline(QLatin1StringView data);

QPainterPath circle(QPointF centre, double radius);
QPainterPath ellipse(QPointF centre, double across, double down);
QPainterPath box(const QRectF &rect, double corner = 0);
QPainterPath polygon(const QPolygonF &corners);

/// A smooth line through all points.
QPainterPath through(const QPolygonF &points);

/// A star with so many arms, of rounded tips when `soft` is above 0 (1 is very round).
QPainterPath star(QPointF centre, double outer, double inner, int arms, double soft = 0, double turn = -90);

/// The same shape on the other side of the upright line at x.
QPainterPath mirrored(const QPainterPath &shape, double x = 0);

/// Throws of a die that fall the same way on every run and every machine.
class Dice
{
public:
    explicit Dice(quint64 seed)
        : m_state(seed)
    {
    }
    /// From `low` up to `high`, without `high`.
    double between(double low, double high);
    int below(int count);

private:
    quint64 m_state;
};

} // namespace vexal::sample
