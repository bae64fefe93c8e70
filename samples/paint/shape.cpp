#include "shape.h"

#include <QtMath>

namespace vexal::sample {

QColor ink(QRgb code, double opacity)
{
    QColor colour = QColor::fromRgb(code | 0xFF000000U);
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

QColor mix(const QColor &from, const QColor &to, double share)
{
    const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()),
            part(from.alpha(), to.alpha())};
}

QPainterPath circle(QPointF centre, double radius)
{
    return ellipse(centre, radius, radius);
}

QPainterPath ellipse(QPointF centre, double across, double down)
{
    QPainterPath path;
    path.addEllipse(centre, across, down);
    return path;
}

QPainterPath box(const QRectF &rect, double corner)
{
    QPainterPath path;
    if (corner > 0)
        path.addRoundedRect(rect, corner, corner);
    else
        path.addRect(rect);
    return path;
}

QPainterPath polygon(const QPolygonF &corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath through(const QPolygonF &points)
{
    QPainterPath path(points.first());
    for (qsizetype i = 0; i + 1 < points.size(); ++i) {
        const QPointF before = points.at(qMax<qsizetype>(i - 1, 0));
        const QPointF after = points.at(qMin(i + 2, points.size() - 1));
        path.cubicTo(points.at(i) + (points.at(i + 1) - before) / 6, points.at(i + 1) - (after - points.at(i)) / 6,
                     points.at(i + 1));
    }
    return path;
}

QPainterPath star(QPointF centre, double outer, double inner, int arms, double soft, double turn)
{
    QPolygonF corners;
    for (int i = 0; i < 2 * arms; ++i) {
        const double angle = qDegreesToRadians(turn + 180.0 * i / arms);
        corners << centre + (i % 2 == 0 ? outer : inner) * QPointF(qCos(angle), qSin(angle));
    }
    if (soft <= 0)
        return polygon(corners);
    QPainterPath path;
    const qsizetype count = corners.size();
    for (qsizetype i = 0; i < count; ++i) { // cut every corner short and bend round it
        const QPointF corner = corners.at(i);
        const double cut = (i % 2 == 0 ? 0.5 : 0.28) * soft;
        const QPointF in = corner + (corners.at((i + count - 1) % count) - corner) * cut;
        const QPointF out = corner + (corners.at((i + 1) % count) - corner) * cut;
        if (i == 0)
            path.moveTo(in);
        else
            path.lineTo(in);
        path.quadTo(corner, out);
    }
    path.closeSubpath();
    return path;
}

QPainterPath mirrored(const QPainterPath &shape, double x)
{
    return QTransform(-1, 0, 0, 1, 2 * x, 0).map(shape);
}

double Dice::between(double low, double high)
{
    m_state += 0x9E3779B97F4A7C15U;
    quint64 bits = m_state;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    return low + (high - low) * static_cast<double>(bits >> 11U) * 0x1.0p-53;
}

int Dice::below(int count)
{
    return static_cast<int>(between(0, count));
}

} // namespace vexal::sample
