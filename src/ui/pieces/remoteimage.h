#pragma once

#include "images.h"

#include <QQuickItem>

class QQmlEngine;

namespace vexal {

/// Makes the one picture cache known to an engine's screens. Call it before the engine loads one.
void giveImages(QQmlEngine &engine, Images &images);

/// Shows the picture of a blob key, fitted to the item or filling it: at once when its pixels are held, else as soon as
/// they are decoded. Until then it draws nothing, so that what lies under it is the placeholder. The pixels are those
/// of the item's size on its screen, so that no stroke of a page is lost between them.
class RemoteImage : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL)
    Q_PROPERTY(bool fill READ fill WRITE setFill NOTIFY fillChanged FINAL)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY hasPictureChanged FINAL)

public:
    explicit RemoteImage(QQuickItem *parent = nullptr);

    /// The blob key; empty for none.
    QString key() const { return m_key; }
    void setKey(const QString &key);

    /// Fills the item and crops what does not fit; else the whole picture is seen, in the middle.
    bool fill() const { return m_fill; }
    void setFill(bool fill);

    /// How round its corners are, in points. For small pictures: rounding costs a copy.
    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);

    /// There are pixels to show.
    bool hasPicture() const { return !m_pixels.isNull(); }

Q_SIGNALS:
    void keyChanged();
    void fillChanged();
    void radiusChanged();
    void hasPictureChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    template <typename Change>
    void changing(Change change);
    void find();
    void want();
    void receive(QSize level, const QImage &pixels);
    void show(const QImage &pixels, QSize level);
    QSize wantedLevel() const;
    Images *images() const;

    QString m_key;
    bool m_fill = false;
    qreal m_radius = 0;
    std::optional<Picture> m_picture;
    QImage m_pixels; ///< What is shown: the picture at m_level.
    QSize m_level;
    bool m_loading = false;
    bool m_redraw = false; ///< The texture is of other pixels than m_pixels.
};

/// Where a picture of a size lies in an item, and which part of it is seen.
struct Placement
{
    QRectF source; ///< In pixels of the picture.
    QRectF target; ///< In points of the item.
    bool operator==(const Placement &) const = default;
};

/// The whole picture in the middle of the item, as large as fits; or, filling it, the middle of the picture.
Placement placed(QSizeF picture, QSizeF item, bool fill);

} // namespace vexal
