#include "remoteimage.h"

#include <QPainter>
#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickWindow>

#include <cmath>
#include <memory>
#include <utility>

namespace vexal {

namespace {

const char *const imagesProperty = "images";

// The seen part of the pixels with round corners, in device pixels.
QImage rounded(const QImage &pixels, const Placement &place, qreal radius, qreal scale)
{
    const QSize size = (place.target.size() * scale).toSize().expandedTo({1, 1});
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), QSizeF(size)), radius * scale, radius * scale);
    const QImage part = pixels.copy(place.source.toAlignedRect());
    QBrush brush(part);
    brush.setTransform(QTransform::fromScale(qreal(size.width()) / part.width(), qreal(size.height()) / part.height()));
    painter.fillPath(outline, brush);
    return image;
}

} // namespace

void giveImages(QQmlEngine &engine, Images &images)
{
    engine.setProperty(imagesProperty, QVariant::fromValue(&images));
}

Placement placed(QSizeF picture, QSizeF item, bool fill)
{
    const QSizeF size = picture.scaled(item, fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
    if (!fill)
        return {{QPointF(), picture},
                {QPointF((item.width() - size.width()) / 2, (item.height() - size.height()) / 2), size}};
    const QSizeF seen(picture.width() * item.width() / size.width(), picture.height() * item.height() / size.height());
    return {{QPointF((picture.width() - seen.width()) / 2, (picture.height() - seen.height()) / 2), seen},
            {QPointF(), item}};
}

RemoteImage::RemoteImage(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

Images *RemoteImage::images() const
{
    const QQmlEngine *engine = qmlEngine(this);
    return engine ? engine->property(imagesProperty).value<Images *>() : nullptr;
}

// Whatever a change does on its way, whether there is a picture is told once, at its end.
template <typename Change>
void RemoteImage::changing(Change change)
{
    const bool had = hasPicture();
    change();
    if (had != hasPicture())
        Q_EMIT hasPictureChanged();
}

void RemoteImage::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    restart();
    Q_EMIT keyChanged();
}

void RemoteImage::setDifference(const QString &key)
{
    if (m_difference == key)
        return;
    m_difference = key;
    restart();
    Q_EMIT differenceChanged();
}

// Pixels that are held are shown in the very frame in which a key changed; none outlive their keys.
void RemoteImage::restart()
{
    changing([this] {
        m_found = {};
        m_source.reset();
        m_pixels = {};
        m_level = {};
        m_request.reset();
        m_redraw = true;
        find();
        update();
    });
}

void RemoteImage::setFill(bool fill)
{
    if (m_fill == fill)
        return;
    m_fill = fill;
    want();
    update();
    Q_EMIT fillChanged();
}

void RemoteImage::setStretch(bool stretch)
{
    if (m_stretch == stretch)
        return;
    m_stretch = stretch;
    want();
    update();
    Q_EMIT stretchChanged();
}

void RemoteImage::setStepped(bool stepped)
{
    if (m_stepped == stepped)
        return;
    m_stepped = stepped;
    want();
    Q_EMIT steppedChanged();
}

void RemoteImage::setAhead(bool ahead)
{
    if (m_ahead == ahead)
        return;
    m_ahead = ahead;
    // What is on its way is asked for again, for it is looked at now.
    if (!m_ahead && m_request) {
        m_request.reset();
        want();
    }
    Q_EMIT aheadChanged();
}

void RemoteImage::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    m_redraw = true;
    update();
    Q_EMIT radiusChanged();
}

void RemoteImage::componentComplete()
{
    QQuickItem::componentComplete();
    changing([this] { find(); });
}

void RemoteImage::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() == before.size())
        return;
    want();
    m_redraw = m_redraw || m_radius > 0;
    update();
}

void RemoteImage::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        want();
}

void RemoteImage::find()
{
    Images *cache = isComponentComplete() ? images() : nullptr;
    if (!cache || m_key.isEmpty())
        return;
    const std::array keys{m_key, m_difference};
    for (int place = 0; place < 2; ++place) {
        if (keys[place].isEmpty() || m_found[place])
            continue;
        cache->image(keys[place], this, [this, keys, place](const std::optional<Picture> &picture) {
            if (keys == std::array{m_key, m_difference} && picture)
                changing([&] { found(place, picture); });
        });
    }
}

void RemoteImage::found(int place, const std::optional<Picture> &picture)
{
    m_found[place] = picture;
    const bool complete = m_found[0] && (m_difference.isEmpty() || m_found[1]);
    if (!complete)
        return;
    m_source = m_difference.isEmpty() ? Source(*m_found[0]) : Source(*m_found[0], *m_found[1]);
    want();
    Q_EMIT pixelsChanged();
}

// The size in points at which a picture of a size is drawn in the item; what is cropped away counts.
QSizeF RemoteImage::seen(QSizeF picture, QSizeF item) const
{
    if (m_stretch)
        return item;
    return picture.scaled(item, m_fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
}

// The size in device pixels in which the picture is seen.
QSize RemoteImage::wantedLevel() const
{
    if (!m_source || !window() || width() <= 0 || height() <= 0)
        return {};
    const QSizeF drawn = seen(m_source->size(), size() * window()->effectiveDevicePixelRatio());
    const QSize shown(int(std::lround(drawn.width())), int(std::lround(drawn.height())));
    return m_stepped ? Pixels::steppedLevelFor(*m_source, shown) : Pixels::levelFor(*m_source, shown);
}

// Pixels that are held are shown at once. Until the wanted ones are there another level that is held stands in, so that
// a page that is known is never an empty frame.
void RemoteImage::want()
{
    const QSize level = wantedLevel();
    if (level.isEmpty() || level == m_level)
        return;
    Pixels &cache = images()->pixels();
    if (const QImage held = cache.held(*m_source, level); !held.isNull())
        return show(held, level);
    if (const QImage other = m_pixels.isNull() ? cache.heldInstead(*m_source) : QImage(); !other.isNull())
        show(other, {});
    if (m_request || std::exchange(m_asking, true))
        return;
    // While the screens are laid out the item passes through sizes that nobody sees.
    QMetaObject::invokeMethod(this, &RemoteImage::load, Qt::QueuedConnection);
}

// One level is decoded at a time; when it is there, the size of that moment is asked for.
void RemoteImage::load()
{
    m_asking = false;
    const QSize level = wantedLevel();
    if (m_request || level.isEmpty() || level == m_level)
        return;
    m_request = std::make_unique<QObject>();
    const auto urgency = isVisible() && !m_ahead ? Pixels::Urgency::Shown : Pixels::Urgency::Ahead;
    images()->pixels().load(*m_source, level, urgency, m_request.get(),
                            [this, level](const QImage &loaded) { changing([&] { receive(level, loaded); }); });
}

void RemoteImage::receive(QSize level, const QImage &pixels)
{
    m_request.reset();
    if (!pixels.isNull()) {
        show(pixels, level);
        return want();
    }
    m_found = {};
    m_source.reset();
    // Two pages that give no difference are shown by others, who find out which of them is spoiled.
    if (m_difference.isEmpty() && images()->spoiled(m_key))
        find();
}

void RemoteImage::show(const QImage &pixels, QSize level)
{
    m_pixels = pixels;
    m_level = level;
    m_redraw = true;
    update();
}

Placement RemoteImage::placement() const
{
    return m_stretch ? Placement{QRectF(QPointF(), m_pixels.size()), QRectF(QPointF(), size())}
                     : placed(m_pixels.size(), size(), m_fill);
}

QSGNode *RemoteImage::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (m_pixels.isNull() || width() <= 0 || height() <= 0) {
        delete node;
        return nullptr;
    }
    const Placement place = placement();
    const qreal scale = window()->effectiveDevicePixelRatio();
    auto *picture = static_cast<TiledPicture *>(node);
    if (!picture || m_redraw) {
        delete picture;
        picture = new TiledPicture(*window(), m_radius > 0 ? rounded(m_pixels, place, m_radius, scale) : m_pixels);
        m_redraw = false;
    }
    if (m_radius > 0) {
        picture->lay({QRectF({}, picture->size()), place.target}, QSGTexture::Linear);
        return picture;
    }
    // A level that was made for just this size lies pixel on pixel and needs no filter.
    const QSizeF drawn = place.target.size() * scale;
    const bool exact = std::abs(drawn.width() / place.source.width() - 1) * m_pixels.width() < 1 &&
                       std::abs(drawn.height() / place.source.height() - 1) * m_pixels.height() < 1;
    picture->lay(place, exact && !m_fill ? QSGTexture::Nearest : QSGTexture::Linear);
    return picture;
}

} // namespace vexal
