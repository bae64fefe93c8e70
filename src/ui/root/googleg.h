#pragma once

#include "drawing.h"

namespace vexal {
/// The logo of the sign-in button, as wide as the item: a ring of four colours that lies inside the square, and the
/// bar.
class GoogleG : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit GoogleG(QQuickItem *parent = nullptr);

protected:
    void draw(QPainter &painter) const override;
};
} // namespace vexal
