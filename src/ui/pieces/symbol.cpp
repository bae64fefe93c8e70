#include "symbol.h"

#include <QPainter>

#include <cmath>

namespace vexal {
namespace {
constexpr qreal kBoldens = 2.4; // units of stroke that make a regular symbol bold
}

Symbol::Symbol(QQuickItem *parent)
    : Drawing(parent)
{
    setSize(13);
}

void Symbol::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    m_shape = symbolShape(name);
    update();
    Q_EMIT nameChanged();
}

void Symbol::setSize(qreal size)
{
    if (m_size == size)
        return;
    m_size = size;
    setImplicitSize(std::ceil(size), std::ceil(size));
    update();
    Q_EMIT sizeChanged();
}

void Symbol::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void Symbol::setBold(bool bold)
{
    if (m_bold == bold)
        return;
    m_bold = bold;
    update();
    Q_EMIT boldChanged();
}

void Symbol::draw(QPainter &painter) const
{
    if (!m_shape)
        return;
    const qreal stroke = m_shape->stroke + (m_bold ? kBoldens : 0);
    const qreal middle = SymbolShape::kBox / 2;
    painter.translate(width() / 2, height() / 2);
    painter.scale(m_size / SymbolShape::kSeen, m_size / SymbolShape::kSeen);
    painter.translate(-middle, -middle);
    painter.setPen(stroke > 0 ? QPen(m_color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin) : QPen(Qt::NoPen));
    painter.setBrush(m_shape->stroke > 0 ? QBrush(Qt::NoBrush) : QBrush(m_color));
    painter.drawPath(m_shape->path);
}

qreal Symbol::overhang() const
{
    return m_size * (SymbolShape::kBox - SymbolShape::kSeen + kBoldens) / 2 / SymbolShape::kSeen;
}
} // namespace vexal
