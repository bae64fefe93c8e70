#include "appicon.h"

#include "palette.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr int svgSide = 128;
constexpr qreal hairline = 1;

/// The icon's shapes, in pixels.
struct Shapes
{
    QPainterPath sheet;
    QPainterPath ours;   ///< The left half disc, filled.
    QPainterPath theirs; ///< The right one, outlined.
    qreal stroke;        ///< Of that outline.
};

qreal even(qreal length)
{
    return 2 * std::round(length / 2);
}

QPainterPath halfDisc(QPointF flatTop, qreal radius, int sweep)
{
    QPainterPath path(flatTop);
    path.arcTo(flatTop.x() - radius, flatTop.y(), 2 * radius, 2 * radius, 90, sweep);
    path.closeSubpath();
    return path;
}

Shapes shapes(int side)
{
    const bool small = side <= 32;
    const qreal margin = small ? 0 : std::round(side / 16.0);
    const qreal height = even(side * (small ? 0.62 : 0.5));
    const qreal gap = std::max(2.0, even(0.10 * height));
    const qreal stroke = small ? std::max(1.0, std::round(0.085 * height)) : std::max(1.4, 0.085 * height);
    const qreal top = (side - height) / 2;
    const qreal inset = stroke / 2;
    const qreal edge = margin + hairline / 2;
    QPainterPath sheet;
    sheet.addRoundedRect(QRectF(edge, edge, side - 2 * edge, side - 2 * edge), 0.2 * side, 0.2 * side);
    return {.sheet = sheet,
            .ours = halfDisc({(side - gap) / 2, top}, height / 2, 180),
            .theirs = halfDisc({(side + gap) / 2 + inset, top + inset}, height / 2 - inset, -180),
            .stroke = stroke};
}

QColor sheetColour()
{
    return colour(Role::Paper, false);
}
QColor edgeColour()
{
    return laidOver(colour(Role::Hair, false), sheetColour());
}
QColor oursColour()
{
    return tint(Tone::Accent, false).plain;
}
QColor theirsColour()
{
    return colour(Role::Text, false);
}

QString number(qreal value)
{
    return QString::number(std::round(value * 100) / 100);
}

QString pathData(const QPainterPath &path)
{
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto at = path.elementAt(i);
        const QLatin1StringView verb = at.isMoveTo()    ? "M"_L1
                                       : at.isLineTo()  ? "L"_L1
                                       : at.isCurveTo() ? "C"_L1
                                                        : " "_L1;
        data += verb + number(at.x) + u' ' + number(at.y);
    }
    return data + u'Z';
}

QString svgPath(const QPainterPath &path, const QString &paint)
{
    return u"  <path d=\"%1\" %2/>\n"_s.arg(pathData(path), paint);
}

QString filled(const QColor &colour)
{
    return u"fill=\"%1\""_s.arg(colour.name());
}

QString outlined(const QColor &colour, qreal width)
{
    return u"stroke=\"%1\" stroke-width=\"%2\" stroke-linejoin=\"round\""_s.arg(colour.name(), number(width));
}

} // namespace

QImage appIcon(int side)
{
    const Shapes icon = shapes(side);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeColour(), hairline));
    painter.setBrush(sheetColour());
    painter.drawPath(icon.sheet);
    painter.fillPath(icon.ours, oursColour());
    painter.strokePath(icon.theirs, QPen(theirsColour(), icon.stroke, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.end();
    return image;
}

QByteArray appIconSvg()
{
    const Shapes icon = shapes(svgSide);
    const QString none = u"fill=\"none\" "_s;
    const QString document =
        u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%1\" viewBox=\"0 0 %1 %1\">\n"_s.arg(
            svgSide) +
        svgPath(icon.sheet, filled(sheetColour()) + u' ' + outlined(edgeColour(), hairline)) +
        svgPath(icon.ours, filled(oursColour())) + svgPath(icon.theirs, none + outlined(theirsColour(), icon.stroke)) +
        u"</svg>\n"_s;
    return document.toUtf8();
}

} // namespace vexal
