#pragma once

#include <QImage>
#include <QSGNode>
#include <QSGTexture>

class QQuickWindow;

namespace vexal {

/// Which part of a picture lies where in an item.
struct Placement
{
    QRectF source; ///< In pixels of the picture.
    QRectF target; ///< In points of the item.
    bool operator==(const Placement &) const = default;
};

/// The tiles of a picture of that size, from its top left corner: none larger than every graphics driver takes for a
/// texture. A larger texture would be squeezed, each side by itself.
QList<QRect> tilesOf(QSize picture);

/// A picture of any size in the scene. Each tile carries the pixels around it as well, so that filtering leaves no
/// seam between two.
class TiledPicture : public QSGNode
{
public:
    TiledPicture(QQuickWindow &window, const QImage &image);

    QSizeF size() const { return m_size; } ///< In pixels.
    void lay(const Placement &place, QSGTexture::Filtering filtering);

private:
    QSize m_size;
    QList<QRect> m_tiles; ///< One a child.
};

} // namespace vexal
