#include "tiledpicture.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>

namespace vexal {

namespace {

constexpr int largestTile = 4096;

// The pixels that a tile's texture is made of.
QRect textureOf(const QRect &tile, QSize picture)
{
    return tile.adjusted(-1, -1, 1, 1) & QRect(QPoint(), picture);
}

} // namespace

QList<QRect> tilesOf(QSize picture)
{
    const QSize largest(largestTile, largestTile);
    QList<QRect> tiles;
    for (int y = 0; y < picture.height(); y += largestTile) {
        for (int x = 0; x < picture.width(); x += largestTile)
            tiles.append(QRect({x, y}, largest) & QRect({}, picture));
    }
    return tiles;
}

TiledPicture::TiledPicture(QQuickWindow &window, const QImage &image)
    : m_size(image.size())
    , m_tiles(tilesOf(m_size))
{
    for (const QRect &tile : std::as_const(m_tiles)) {
        QSGImageNode *node = window.createImageNode();
        node->setTexture(
            window.createTextureFromImage(m_tiles.size() > 1 ? image.copy(textureOf(tile, m_size)) : image));
        node->setOwnsTexture(true);
        appendChildNode(node);
    }
}

void TiledPicture::lay(const Placement &place, QSGTexture::Filtering filtering)
{
    const qreal across = place.target.width() / place.source.width();
    const qreal down = place.target.height() / place.source.height();
    QSGNode *child = firstChild();
    for (const QRect &tile : std::as_const(m_tiles)) {
        auto *node = static_cast<QSGImageNode *>(child);
        const QRectF seen = QRectF(tile) & place.source;
        const QPointF from = seen.topLeft() - place.source.topLeft();
        node->setFiltering(filtering);
        node->setSourceRect(seen.translated(-textureOf(tile, m_size).topLeft()));
        node->setRect({place.target.x() + from.x() * across, place.target.y() + from.y() * down, seen.width() * across,
                       seen.height() * down});
        child = child->nextSibling();
    }
}

} // namespace vexal
