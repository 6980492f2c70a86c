#include "SoftShadow.h"

#include "SoftBlur.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <memory>

namespace
{

/// Nine rectangles with one texture.
class NinePatch : public QSGNode
{
public:
    explicit NinePatch(QQuickWindow &window)
    {
        for (QSGImageNode *&tile : m_tiles) {
            tile = window.createImageNode();
            tile->setFiltering(QSGTexture::Linear);
            appendChildNode(tile);
        }
    }

    void setTexture(QSGTexture *texture)
    {
        for (QSGImageNode *tile : m_tiles)
            tile->setTexture(texture);
        m_texture.reset(texture);
    }

    void spread(const QRectF &area, qreal ratio)
    {
        const QSize size = m_texture->textureSize();
        const QSize corner((size.width() - 1) / 2, (size.height() - 1) / 2);
        const qreal wide = corner.width() / ratio;
        const qreal high = corner.height() / ratio;
        const qreal xs[] = {area.left(), area.left() + wide, qMax(area.left() + wide, area.right() - wide),
                            area.right()};
        const qreal ys[] = {area.top(), area.top() + high, qMax(area.top() + high, area.bottom() - high),
                            area.bottom()};
        const int us[] = {0, corner.width(), size.width() - corner.width(), size.width()};
        const int vs[] = {0, corner.height(), size.height() - corner.height(), size.height()};
        for (int i = 0; i < 9; ++i) {
            const int column = i % 3;
            const int row = i / 3;
            m_tiles[i]->setRect(QRectF(QPointF(xs[column], ys[row]), QPointF(xs[column + 1], ys[row + 1])));
            m_tiles[i]->setSourceRect(
                QRectF(QPointF(us[column], vs[row]), QPointF(us[column + 1], vs[row + 1])));
        }
    }

private:
    QSGImageNode *m_tiles[9];
    std::unique_ptr<QSGTexture> m_texture;
};

} // namespace

SoftShadow::SoftShadow(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &SoftShadow::shadowChanged, this, [this] {
        m_isStale = true;
        update();
    });
}

QSGNode *SoftShadow::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (!isVisible())
        return node; // blur only once the item is visible
    if (width() <= 0 || height() <= 0 || m_blur <= 0) {
        delete node;
        m_isStale = true;
        return nullptr;
    }
    auto *patch = static_cast<NinePatch *>(node);
    if (!patch) {
        patch = new NinePatch(*window());
        m_isStale = true;
    }
    const qreal ratio = window()->effectiveDevicePixelRatio();
    const QSizeF shape = pictureShape();
    if (m_isStale || shape != m_paintedShape) {
        patch->setTexture(
            window()->createTextureFromImage(picture(shape, ratio), QQuickWindow::TextureHasAlphaChannel));
        m_paintedShape = shape;
        m_isStale = false;
    }
    patch->spread(boundingRect().adjusted(-margin(), -margin(), margin(), margin()), ratio);
    return patch;
}

qreal SoftShadow::margin() const
{
    return softReach(m_blur) + qAbs(m_drop) + 1;
}

QSizeF SoftShadow::pictureShape() const
{
    const qreal enough = 2 * (m_radius + softReach(m_blur)) + 1;
    return {qMin(width(), enough), qMin(height(), enough)};
}

QImage SoftShadow::picture(const QSizeF &shape, qreal ratio) const
{
    const QSize pixels(qCeil((shape.width() + 2 * margin()) * ratio),
                       qCeil((shape.height() + 2 * margin()) * ratio));
    const QRectF outline(QPointF(margin(), margin()), shape);
    const auto fillOutline = [&](QImage &image, qreal drop, QPainter::CompositionMode mode) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setCompositionMode(mode);
        painter.scale(ratio, ratio);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRoundedRect(outline.translated(0, drop), m_radius, m_radius);
    };
    QImage cast(pixels, QImage::Format_ARGB32_Premultiplied);
    cast.fill(Qt::transparent);
    fillOutline(cast, m_drop, QPainter::CompositionMode_SourceOver);
    QImage shadow = softened(cast, m_blur * ratio, m_color);
    fillOutline(shadow, 0, QPainter::CompositionMode_DestinationOut);
    return shadow;
}

void SoftShadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

void SoftShadow::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged)
        update();
    if (change == ItemDevicePixelRatioHasChanged) {
        m_isStale = true;
        update();
    }
}
