#include "PictureItem.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

PictureItem::PictureItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void PictureItem::repaintPicture()
{
    m_isStale = true;
    update();
}

QSGNode *PictureItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (width() <= 0 || height() <= 0) {
        delete node;
        m_isStale = true;
        return nullptr;
    }
    auto *imageNode = static_cast<QSGImageNode *>(node);
    if (!imageNode) {
        imageNode = window()->createImageNode();
        imageNode->setOwnsTexture(true);
        imageNode->setFiltering(QSGTexture::Linear);
        m_isStale = true;
    }
    if (m_isStale) {
        const QImage image = picture();
        imageNode->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
        imageNode->setRect(QRectF({}, image.deviceIndependentSize()));
        m_isStale = false;
    }
    return imageNode;
}

QImage PictureItem::picture()
{
    const qreal ratio = window()->effectiveDevicePixelRatio();
    const QSize pixels(qCeil(width() * ratio), qCeil(height() * ratio));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintPicture(painter, size());
    return image;
}

void PictureItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaintPicture();
}

void PictureItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged)
        repaintPicture();
}
