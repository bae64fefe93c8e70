#include "gleam.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace vexal {

namespace {

// Lays the lines out one under the other; answers how high they are together.
qreal breakIntoLines(QTextLayout &layout, qreal width)
{
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += std::ceil(line.height());
    }
    layout.endLayout();
    return height;
}

QColor between(const QColor &a, const QColor &b, qreal share)
{
    const auto part = [share](float from, float to) { return float(from + (to - from) * share); };
    return QColor::fromRgbF(part(a.redF(), b.redF()), part(a.greenF(), b.greenF()), part(a.blueF(), b.blueF()),
                            part(a.alphaF(), b.alphaF()));
}

} // namespace

Gleam::Gleam(QQuickItem *parent)
    : Drawing(parent)
{
    connect(this, &Gleam::lightChanged, this, &QQuickItem::update);
}

void Gleam::setText(const QString &text)
{
    if (m_text == text)
        return;
    m_text = text;
    measure();
    Q_EMIT textChanged();
}

void Gleam::setFont(const QFont &font)
{
    if (m_font == font)
        return;
    m_font = font;
    measure();
    Q_EMIT fontChanged();
}

void Gleam::draw(QPainter &painter) const
{
    QTextLayout layout(m_text, m_font);
    breakIntoLines(layout, width());
    painter.setPen(QPen(brush(), 0));
    layout.draw(&painter, {});
}

void Gleam::geometryChange(const QRectF &now, const QRectF &before)
{
    Drawing::geometryChange(now, before);
    if (now.width() != before.width())
        measure();
}

void Gleam::measure()
{
    QTextLayout layout(m_text, m_font);
    setImplicitWidth(std::ceil(QFontMetricsF(m_font).horizontalAdvance(m_text)));
    setImplicitHeight(breakIntoLines(layout, width() > 0 ? width() : implicitWidth()));
    update();
}

// Beyond its ends a gradient goes on in the colour that it ends with: that of the words.
QBrush Gleam::brush() const
{
    QLinearGradient gradient(m_phase * width(), 0, (m_phase + 1) * width(), 0);
    gradient.setColorAt(0, m_color);
    gradient.setColorAt(0.5, between(m_color, m_light, m_strength));
    gradient.setColorAt(1, m_color);
    return gradient;
}

} // namespace vexal
