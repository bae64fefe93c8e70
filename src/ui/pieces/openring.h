#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {
/// The still picture of a spinner: a circle that is open for a bit more than a quarter of a turn.
class OpenRing : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)

public:
    explicit OpenRing(QQuickItem *parent = nullptr);

    /// How wide the line of a ring of that size is, in points.
    Q_INVOKABLE static qreal lineWidth(qreal size) { return qMax(0.125 * size, 1.6); }

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    QColor m_color = Qt::black;
};
} // namespace vexal
