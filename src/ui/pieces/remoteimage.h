#pragma once

#include "images.h"
#include "tiledpicture.h"

#include <QQuickItem>

#include <array>
#include <memory>

class QQmlEngine;

namespace vexal {

/// Makes the one picture cache known to an engine's screens. Call it before the engine loads one.
void giveImages(QQmlEngine &engine, Images &images);

/// The whole picture in the middle of the item, as large as fits; or, filling it, the middle of the picture.
Placement placed(QSizeF picture, QSizeF item, bool fill);

/// Shows the picture of a blob key, fitted to the item or filling it: at once when its pixels are held, else as soon as
/// they are decoded. Until then it draws nothing, so that what lies under it is the placeholder. The pixels are those
/// of the item's size on its screen, so that no stroke of a page is lost between them. With a second key it shows the
/// difference of the two instead.
class RemoteImage : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL)
    Q_PROPERTY(QString difference READ difference WRITE setDifference NOTIFY differenceChanged FINAL)
    Q_PROPERTY(bool fill READ fill WRITE setFill NOTIFY fillChanged FINAL)
    Q_PROPERTY(bool stretch READ stretch WRITE setStretch NOTIFY stretchChanged FINAL)
    Q_PROPERTY(bool stepped READ stepped WRITE setStepped NOTIFY steppedChanged FINAL)
    Q_PROPERTY(bool ahead READ ahead WRITE setAhead NOTIFY aheadChanged FINAL)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged FINAL)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY hasPictureChanged FINAL)
    Q_PROPERTY(QSizeF pixels READ pixels NOTIFY pixelsChanged FINAL)

public:
    explicit RemoteImage(QQuickItem *parent = nullptr);

    /// The blob key; empty for none.
    QString key() const { return m_key; }
    void setKey(const QString &key);

    /// The blob key of the page that this one is compared with; empty to show the picture itself.
    QString difference() const { return m_difference; }
    void setDifference(const QString &key);

    /// Fills the item and crops what does not fit; else the whole picture is seen, in the middle.
    bool fill() const { return m_fill; }
    void setFill(bool fill);

    /// Fills the item exactly, whatever shape the picture has.
    bool stretch() const { return m_stretch; }
    void setStretch(bool stretch);

    /// Its size is about to change often, so few levels of the picture must do for all sizes.
    bool stepped() const { return m_stepped; }
    void setStepped(bool stepped);

    /// It is not what is seen now, but may be next: what is seen comes first.
    bool ahead() const { return m_ahead; }
    void setAhead(bool ahead);

    /// How round its corners are, in points. For small pictures: rounding costs a copy.
    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);

    /// There are pixels to show.
    bool hasPicture() const { return !m_pixels.isNull(); }

    /// The pixels are those of the size at which it is seen, and do not stand in for them.
    bool isSharp() const { return hasPicture() && m_level == wantedLevel(); }

    /// How many pixels the whole picture has, whatever is shown of them; empty until it is known.
    QSizeF pixels() const { return m_source ? QSizeF(m_source->size()) : QSizeF(); }

Q_SIGNALS:
    void keyChanged();
    void differenceChanged();
    void fillChanged();
    void stretchChanged();
    void steppedChanged();
    void aheadChanged();
    void radiusChanged();
    void hasPictureChanged();
    void pixelsChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *) override;

private:
    template <typename Change>
    void changing(Change change);
    void restart();
    void find();
    void found(int place, const std::optional<Picture> &picture);
    QSizeF seen(QSizeF picture, QSizeF item) const;
    Placement placement() const;
    void want();
    void load();
    void receive(QSize level, const QImage &pixels);
    void show(const QImage &pixels, QSize level);
    QSize wantedLevel() const;
    Images *images() const;

    QString m_key;
    QString m_difference;
    bool m_fill = false;
    bool m_stretch = false;
    bool m_stepped = false;
    bool m_ahead = false;
    qreal m_radius = 0;
    std::array<std::optional<Picture>, 2> m_found; ///< The picture and the one it is compared with.
    std::optional<Source> m_source;                ///< What is shown, once all of it is found.
    QImage m_pixels;                               ///< What is shown: the source at m_level, or at another until then.
    QSize m_level;
    bool m_asking = false;              ///< Once this turn is over, the level that is wanted then is asked for.
    std::unique_ptr<QObject> m_request; ///< While a level is loaded. Without it nothing is answered.
    bool m_redraw = false;              ///< The texture is of other pixels than m_pixels.
};

} // namespace vexal
