#pragma once

#include <QQuickItem>

class QPainter;

/// An item that shows a picture painted by a subclass in device pixels, repainted only after a change. Works
/// with and without a graphics card. It is painted while the interface thread is blocked, so painting may use
/// its data.
class PictureItem : public QQuickItem
{
    Q_OBJECT

public:
    explicit PictureItem(QQuickItem *parent = nullptr);

protected:
    /// Paints into a transparent picture of `size` device-independent pixels.
    virtual void paintPicture(QPainter &painter, const QSizeF &size) = 0;
    /// Call it when the picture has changed.
    void repaintPicture();

    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    QImage picture();

    bool m_isStale = true;
};
