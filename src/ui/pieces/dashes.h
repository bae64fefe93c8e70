#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {
/// A horizontal rule of small dashes, one point high and as wide as the item.
class Dashes : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit Dashes(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    QColor m_color = Qt::black;
};
} // namespace vexal
