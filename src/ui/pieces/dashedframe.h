#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {

/// A dashed outline, one point wide, just inside the item: the place of something that is not there.
class DashedFrame : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)

public:
    explicit DashedFrame(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    QColor m_color = Qt::black;
};

} // namespace vexal
