#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {

/// The arrow of a panel, pointing down: its base covers the panel's outline, its sides go on with it.
class Beak : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY changed)
    Q_PROPERTY(qreal line MEMBER m_line NOTIFY changed)

public:
    explicit Beak(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    QColor m_color = Qt::white;
    QColor m_outline = Qt::black;
    qreal m_line = 1; // how wide the panel's outline is, in points: so far the item reaches into the panel
};

} // namespace vexal
