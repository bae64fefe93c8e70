#pragma once

#include "drawing.h"
#include "symbols.h"

#include <QColor>

namespace vexal {
/// A symbol by its name, in the colour of the text beside it. A name that is not known draws nothing.
// The base is named in full for the tools that read this header without knowing its namespace.
class Symbol : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(bool bold READ bold WRITE setBold NOTIFY boldChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    void setName(const QString &name);

    /// The side of the square that the symbol fills, in points; the item is as large, in whole points.
    qreal size() const { return m_size; }
    void setSize(qreal size);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    /// Drawn with the weight of bold text.
    bool bold() const { return m_bold; }
    void setBold(bool bold);

Q_SIGNALS:
    void nameChanged();
    void sizeChanged();
    void colorChanged();
    void boldChanged();

protected:
    void draw(QPainter &painter) const override;
    qreal overhang() const override;

private:
    QString m_name;
    std::optional<SymbolShape> m_shape;
    QColor m_color = Qt::black;
    qreal m_size = 0;
    bool m_bold = false;
};
} // namespace vexal
