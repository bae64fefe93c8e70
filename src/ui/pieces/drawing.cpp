#include "drawing.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>

namespace vexal {
Drawing::Drawing(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

QSGNode *Drawing::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    // The margin is a whole number of device pixels, so that the picture lies on the pixel grid wherever the item does.
    const qreal scale = window()->effectiveDevicePixelRatio();
    const int margin = static_cast<int>(std::ceil(overhang() * scale)) + 1;
    const auto side = [&](qreal points) { return static_cast<int>(std::ceil(points * scale)) + 2 * margin; };
    QImage image(side(width()), side(height()), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(margin, margin);
    painter.scale(scale, scale);
    draw(painter);
    painter.end();

    auto *picture = static_cast<QSGImageNode *>(node);
    if (!picture) {
        picture = window()->createImageNode();
        picture->setOwnsTexture(true);
        picture->setFiltering(QSGTexture::Linear);
    }
    picture->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
    picture->setRect(QRectF(QPointF(-margin, -margin) / scale, QSizeF(image.size()) / scale));
    return picture;
}

void Drawing::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void Drawing::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}
} // namespace vexal
