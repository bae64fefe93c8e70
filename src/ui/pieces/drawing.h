#pragma once

#include <QQuickItem>

class QPainter;

namespace vexal {
/// An item that is painted with a QPainter at the resolution of its screen, once for every change, and from then on is
/// a picture that the scene may move and turn at no cost.
class Drawing : public QQuickItem
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit Drawing(QQuickItem *parent = nullptr);

protected:
    /// Paints in points, the item's top left corner being the origin. Antialiased.
    virtual void draw(QPainter &painter) const = 0;

    /// How far the painting may reach beyond the item's sides, in points.
    virtual qreal overhang() const { return 0; }

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) final;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
};
} // namespace vexal
