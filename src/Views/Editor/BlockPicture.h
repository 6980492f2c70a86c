#pragma once

#include "Controls/PictureItem.h"
#include "Editor/PictureBytes.h"
#include "ImageCache.h"

#include <QPointer>

/// Shows the picture of an image block. It is scaled to cover the item, centred and cut off, with rounded
/// corners. Nothing is drawn if the bytes cannot be decoded.
class BlockPicture : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(ImageCache *images READ images WRITE setImages NOTIFY imagesChanged REQUIRED)
    Q_PROPERTY(QString blockID READ blockID WRITE setBlockID NOTIFY blockIDChanged REQUIRED)
    Q_PROPERTY(PictureBytes imageData READ imageData WRITE setImageData NOTIFY imageDataChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)
    /// Height divided by width; 0 while it is unknown or if there is nothing to draw.
    Q_PROPERTY(qreal aspectRatio READ aspectRatio NOTIFY aspectRatioChanged)
    Q_PROPERTY(bool ready READ isReady NOTIFY readyChanged)
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

    ImageCache *images() const { return m_images; }
    QString blockID() const { return m_blockID.toString(QUuid::WithoutBraces); }
    PictureBytes imageData() const { return {m_imageData}; }
    qreal radius() const { return m_radius; }
    qreal aspectRatio() const { return m_aspectRatio; }
    /// Whether there is something to draw, possibly only a preview.
    bool isReady() const { return !m_image.isNull(); }

    void setImages(ImageCache *images);
    void setBlockID(const QString &blockID);
    void setImageData(const PictureBytes &picture);
    void setRadius(qreal radius);

Q_SIGNALS:
    void imagesChanged();
    void blockIDChanged();
    void imageDataChanged();
    void radiusChanged();
    void aspectRatioChanged();
    void readyChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void componentComplete() override;

private:
    void look();
    void lookAgainFor(const QUuid &id);

    QPointer<ImageCache> m_images;
    QUuid m_blockID;
    QByteArray m_imageData;
    QImage m_image;
    qreal m_radius = 0;
    qreal m_aspectRatio = 0;
};
