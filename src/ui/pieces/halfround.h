#pragma once

#include "drawing.h"

#include <QColor>

namespace vexal {
/// Half a disc, its flat side on the right, or on the left when mirrored. As high as the item; its radius is half of
/// that.
class HalfRound : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool mirrored MEMBER m_mirrored NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(qreal stroke MEMBER m_stroke NOTIFY changed)

public:
    explicit HalfRound(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    void draw(QPainter &painter) const override;
    // The arc's centre lies on the outline's flat side, so the round side reaches out by half a line.
    qreal overhang() const override { return m_stroke / 2; }

private:
    bool m_mirrored = false;
    QColor m_color = Qt::black;
    qreal m_stroke = 0; // 0: filled. Else an outline of that width, drawn inside so that both kinds measure the same.
};
} // namespace vexal
