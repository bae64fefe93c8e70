#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {

/// The sign in a window button: 4.2 points across, in the middle of the item.
class WindowGlyph : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::WindowGlyph::Sign sign MEMBER m_sign NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)

public:
    enum Sign { Close, Minimise, Zoom };
    Q_ENUM(Sign)

    explicit WindowGlyph(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    Sign m_sign = Close;
    QColor m_color = Qt::black;
};

} // namespace vexal
