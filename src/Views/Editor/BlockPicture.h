#pragma once

#include "Controls/PictureItem.h"

#include <QImage>

/// Shows the picture of an image block, scaled to the item with rounded corners. Bytes that no decoder
/// understands draw nothing.
class BlockPicture : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QByteArray imageData READ imageData WRITE setImageData NOTIFY imageDataChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)
    /// Height divided by width; 0 when there is nothing to draw.
    Q_PROPERTY(qreal aspectRatio READ aspectRatio NOTIFY imageDataChanged)
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

    QByteArray imageData() const { return m_imageData; }
    qreal radius() const { return m_radius; }
    qreal aspectRatio() const;

    void setImageData(const QByteArray &bytes);
    void setRadius(qreal radius);

Q_SIGNALS:
    void imageDataChanged();
    void radiusChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    QByteArray m_imageData;
    QImage m_image;
    qreal m_radius = 0;
};
