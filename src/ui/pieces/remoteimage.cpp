#include "remoteimage.h"

#include <QPainter>
#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

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
    changing([this, &key] {
        m_key = key;
        m_picture.reset();
        m_pixels = {};
        m_level = {};
        m_loading = false;
        m_redraw = true;
        // Pixels that are held are shown in the very frame in which the key changed; none outlive their key.
        find();
        update();
    });
    Q_EMIT keyChanged();
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
    cache->image(m_key, this, [this, key = m_key](const std::optional<Picture> &picture) {
        if (key != m_key || !picture)
            return;
        changing([this, &picture] {
            m_picture = picture;
            want();
        });
    });
}

// The size in device pixels in which the picture is seen; what is cropped away counts.
QSize RemoteImage::wantedLevel() const
{
    if (!m_picture || !window() || width() <= 0 || height() <= 0)
        return {};
    const QSizeF item = size() * window()->effectiveDevicePixelRatio();
    const QSizeF seen =
        QSizeF(m_picture->size()).scaled(item, m_fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
    const QSize shown(int(std::lround(seen.width())), int(std::lround(seen.height())));
    return Pixels::levelFor(*m_picture, shown);
}

// One level is decoded at a time; when it is there, the size of that moment is asked for.
void RemoteImage::want()
{
    const QSize level = wantedLevel();
    if (m_loading || level.isEmpty() || level == m_level)
        return;
    Pixels &pixels = images()->pixels();
    if (const QImage held = pixels.held(*m_picture, level); !held.isNull())
        return show(held, level);
    m_loading = true;
    const auto urgency = isVisible() ? Pixels::Urgency::Shown : Pixels::Urgency::Ahead;
    pixels.load(*m_picture, level, urgency, this, [this, id = m_picture->id(), level](const QImage &loaded) {
        if (m_picture && m_picture->id() == id)
            changing([&] { receive(level, loaded); });
    });
}

void RemoteImage::receive(QSize level, const QImage &pixels)
{
    m_loading = false;
    if (!pixels.isNull()) {
        show(pixels, level);
        return want();
    }
    m_picture.reset();
    if (images()->spoiled(m_key))
        find();
}

void RemoteImage::show(const QImage &pixels, QSize level)
{
    m_pixels = pixels;
    m_level = level;
    m_redraw = true;
    update();
}

QSGNode *RemoteImage::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *picture = static_cast<QSGImageNode *>(node);
    if (m_pixels.isNull() || width() <= 0 || height() <= 0) {
        delete picture;
        return nullptr;
    }
    const Placement place = placed(m_pixels.size(), size(), m_fill);
    const qreal scale = window()->effectiveDevicePixelRatio();
    if (!picture) {
        picture = window()->createImageNode();
        picture->setOwnsTexture(true);
        m_redraw = true;
    }
    if (m_redraw) {
        const QImage drawn = m_radius > 0 ? rounded(m_pixels, place, m_radius, scale) : m_pixels;
        picture->setTexture(window()->createTextureFromImage(drawn));
        m_redraw = false;
    }
    // A level that was made for just this size lies pixel on pixel and needs no filter.
    const QSizeF texture = picture->texture()->textureSize();
    const QSizeF shown = m_radius > 0 ? place.target.size() * scale
                                      : place.target.size() * scale * texture.width() / place.source.width();
    const bool exact = std::abs(shown.width() - texture.width()) < 1 && std::abs(shown.height() - texture.height()) < 1;
    picture->setFiltering(exact && m_radius <= 0 && !m_fill ? QSGTexture::Nearest : QSGTexture::Linear);
    picture->setSourceRect(m_radius > 0 ? QRectF(QPointF(), texture) : place.source);
    picture->setRect(place.target);
    return picture;
}

} // namespace vexal
