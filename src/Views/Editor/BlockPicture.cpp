#include "BlockPicture.h"

#include "Models/Block.h"
#include "Store/ChangeScope.h"

#include <QPainter>
#include <QQuickWindow>

void BlockPicture::setImages(ImageCache *images)
{
    if (m_images == images)
        return;
    if (m_images)
        m_images->disconnect(this);
    m_images = images;
    if (m_images)
        connect(m_images, &ImageCache::arrived, this, &BlockPicture::lookAgainFor);
    look();
    Q_EMIT imagesChanged();
}

void BlockPicture::setBlockID(const QString &blockID)
{
    const QUuid id(blockID);
    if (m_blockID == id)
        return;
    m_blockID = id;
    look();
    Q_EMIT blockIDChanged();
}

void BlockPicture::setImageData(const PictureBytes &picture)
{
    if (isSamePicture(m_imageData, picture.bytes))
        return;
    m_imageData = picture.bytes;
    look();
    Q_EMIT imageDataChanged();
}

void BlockPicture::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    repaintPicture();
    Q_EMIT radiusChanged();
}

void BlockPicture::look()
{
    if (!isComponentComplete() || !m_images || !window())
        return;
    const bool hasPicture = !m_imageData.isEmpty() && !m_blockID.isNull();
    const QSize full = hasPicture ? m_images->sizeOf(m_blockID, m_imageData) : QSize();
    // Sets the item's size first, on which the requested size of the picture depends.
    ChangeScope(*this).assign(m_aspectRatio, full.isEmpty() ? 0.0 : qreal(full.height()) / full.width(),
                              &BlockPicture::aspectRatioChanged);
    const QSize pixels = (size() * window()->effectiveDevicePixelRatio()).toSize();
    const bool wasReady = isReady();
    m_image =
        hasPicture && !pixels.isEmpty() ? m_images->cachedImage(m_blockID, m_imageData, pixels) : QImage();
    repaintPicture();
    if (isReady() != wasReady)
        Q_EMIT readyChanged();
}

void BlockPicture::lookAgainFor(const QUuid &id)
{
    if (id == m_blockID)
        look();
}

void BlockPicture::paintPicture(QPainter &painter, const QSizeF &size)
{
    if (m_image.isNull())
        return;
    const QSizeF image = m_image.size();
    const qreal scale = qMax(size.width() / image.width(), size.height() / image.height());
    QTransform place;
    place.translate((size.width() - image.width() * scale) / 2, (size.height() - image.height() * scale) / 2);
    place.scale(scale, scale);
    QBrush brush(m_image);
    brush.setTransform(place);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(QRectF({}, size), m_radius, m_radius);
}

void BlockPicture::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    PictureItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        look();
}

void BlockPicture::itemChange(ItemChange change, const ItemChangeData &value)
{
    PictureItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged || (change == ItemSceneChange && value.window))
        look();
}

void BlockPicture::componentComplete()
{
    PictureItem::componentComplete();
    look();
}
