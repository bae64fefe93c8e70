#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {

/// The drop of a note's pin: a round head over a tip, outlined so that it is seen on any page. 24 by 29 points; the tip
/// is in the middle of the lower edge.
class PinShape : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY changed FINAL)
    Q_PROPERTY(bool plus MEMBER m_plus NOTIFY changed FINAL)

public:
    explicit PinShape(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;

private:
    QColor m_color = Qt::black;
    QColor m_outline = Qt::white;
    bool m_plus = false; ///< The head carries a plus: the note is still being written.
};

} // namespace vexal
