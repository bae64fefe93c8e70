#include "shadow.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

namespace vexal {
namespace {
constexpr int kPasses = 3;       // that many averages make a bell curve
constexpr qreal kFineEnough = 8; // pixels over which a fading edge still looks smooth when it is stretched

// The width of the average whose threefold application comes closest to a bell curve that fades over `blur` pixels.
int boxWidth(qreal blur)
{
    const qreal sigma = blur / 2;
    return static_cast<int>(std::floor(sigma * 3 * std::sqrt(2 * std::numbers::pi) / 4 + 0.5)) | 1;
}

// Averages `count` values that lie `step` apart over `width` neighbours; beyond the ends lies nothing.
void average(float *values, qsizetype count, qsizetype step, qsizetype width, std::vector<float> &line)
{
    line.resize(count);
    const qsizetype half = width / 2;
    float sum = 0;
    for (qsizetype i = 0; i < qMin(half, count); ++i)
        sum += values[i * step];
    for (qsizetype i = 0; i < count; ++i) {
        sum += i + half < count ? values[(i + half) * step] : 0;
        line[i] = sum / static_cast<float>(width);
        sum -= i >= half ? values[(i - half) * step] : 0;
    }
    for (qsizetype i = 0; i < count; ++i)
        values[i * step] = line[i];
}

std::vector<float> coverage(const QImage &panel)
{
    std::vector<float> values;
    values.reserve(size_t(panel.width()) * panel.height());
    for (int y = 0; y < panel.height(); ++y)
        values.insert(values.end(), panel.constScanLine(y), panel.constScanLine(y) + panel.width());
    return values;
}
} // namespace

int shadowMargin(qreal blur)
{
    return kPasses * (boxWidth(blur) / 2) + 1;
}

QImage shadowPicture(QSizeF size, qreal radius, qreal blur, const QColor &color)
{
    const int margin = shadowMargin(blur);
    QImage panel(qCeil(size.width()) + 2 * margin, qCeil(size.height()) + 2 * margin, QImage::Format_Alpha8);
    panel.fill(Qt::transparent);
    QPainter painter(&panel);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(QRectF(QPointF(margin, margin), size), radius, radius);
    painter.end();

    std::vector<float> values = coverage(panel);
    std::vector<float> line;
    const int width = boxWidth(blur);
    for (int pass = 0; pass < kPasses; ++pass) {
        for (int y = 0; y < panel.height(); ++y)
            average(&values[size_t(y) * panel.width()], panel.width(), 1, width, line);
        for (int x = 0; x < panel.width(); ++x)
            average(&values[x], panel.height(), panel.width(), width, line);
    }

    QImage picture(panel.size(), QImage::Format_ARGB32_Premultiplied);
    const float *value = values.data();
    for (int y = 0; y < picture.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            pixels[x] = qPremultiply(
                qRgba(color.red(), color.green(), color.blue(), qRound(qMax(0.F, *value++) * color.alphaF())));
    }
    return picture;
}

namespace {

// A picture in nine parts, of which nothing is stretched but the middle column and the middle row.
class StretchedMiddle : public QSGNode
{
public:
    explicit StretchedMiddle(const QQuickWindow &window)
    {
        for (QSGImageNode *&part : m_parts) {
            part = window.createImageNode();
            part->setFiltering(QSGTexture::Linear);
            appendChildNode(part);
        }
    }

    /// Shows the picture at the place in points; `half` is how large it is on each side of its middle pixels, in
    /// points.
    void show(std::unique_ptr<QSGTexture> texture, const QRectF &place, QSizeF half)
    {
        const QSizeF whole = texture->textureSize();
        const std::array x{place.left(), place.left() + half.width(), place.right() - half.width(), place.right()};
        const std::array y{place.top(), place.top() + half.height(), place.bottom() - half.height(), place.bottom()};
        const std::array u{0., std::floor(whole.width() / 2), std::ceil(whole.width() / 2), whole.width()};
        const std::array v{0., std::floor(whole.height() / 2), std::ceil(whole.height() / 2), whole.height()};
        for (size_t i = 0; i < m_parts.size(); ++i) {
            const size_t column = i % 3;
            const size_t row = i / 3;
            m_parts[i]->setTexture(texture.get());
            m_parts[i]->setSourceRect({QPointF(u[column], v[row]), QPointF(u[column + 1], v[row + 1])});
            m_parts[i]->setRect({QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1])});
        }
        m_texture = std::move(texture);
    }

private:
    std::array<QSGImageNode *, 9> m_parts{};
    std::unique_ptr<QSGTexture> m_texture;
};

// The least size at which the middle of a panel's shadow does not feel its edges, in pixels; the panel's own where that
// is less.
QSizeF leastPanel(QSizeF panel, qreal radius, qreal blur)
{
    const qreal least = 2 * std::ceil(radius + shadowMargin(blur)) + 1;
    return panel.boundedTo({least, least});
}

} // namespace

Shadow::Shadow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &Shadow::changed, this, &QQuickItem::update);
}

QSGNode *Shadow::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (width() <= 0 || height() <= 0 || m_blur <= 0) {
        delete node;
        return nullptr;
    }
    // A wide shadow is painted small and stretched: it has nothing sharp in it.
    const qreal scale = qMin(window()->effectiveDevicePixelRatio(), kFineEnough / m_blur);
    const QSizeF panel = leastPanel(size() * scale, m_radius * scale, m_blur * scale);
    const QImage image = shadowPicture(panel, m_radius * scale, m_blur * scale, m_color);
    auto *picture = static_cast<StretchedMiddle *>(node);
    if (!picture)
        picture = new StretchedMiddle(*window());
    const qreal margin = shadowMargin(m_blur * scale) / scale;
    const QSizeF half = QSize(image.width() / 2, image.height() / 2);
    const QSizeF around = QSizeF(image.size()) / scale + size() - panel / scale;
    std::unique_ptr<QSGTexture> texture(window()->createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
    picture->show(std::move(texture), QRectF(QPointF(-margin, m_drop - margin), around), half / scale);
    return picture;
}

void Shadow::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void Shadow::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}
} // namespace vexal
