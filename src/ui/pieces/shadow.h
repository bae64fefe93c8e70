#pragma once

#include <QColor>
#include <QQuickItem>

namespace vexal {
/// The soft shadow of a rounded panel that is as large as the item. It lies under the panel and reaches beyond it.
class Shadow : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)
    Q_PROPERTY(qreal drop MEMBER m_drop NOTIFY changed)
    Q_PROPERTY(qreal blur MEMBER m_blur NOTIFY changed)

public:
    explicit Shadow(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    QColor m_color = Qt::black;
    qreal m_radius = 0; // of the panel's corners, in points
    qreal m_drop = 0;   // how far the shadow lies below the panel, in points
    qreal m_blur = 0;   // over how many points an edge fades
};

/// The shadow of a panel of `size` with corners of `radius`, faded over `blur`, all in pixels of the picture. The
/// picture is larger than the panel by `shadowMargin(blur)` on every side.
QImage shadowPicture(QSizeF size, qreal radius, qreal blur, const QColor &color);

/// How far a shadow that fades over `blur` pixels reaches beyond its panel, in pixels.
int shadowMargin(qreal blur);
} // namespace vexal
