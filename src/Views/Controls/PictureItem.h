#pragma once

#include <QQuickItem>

class QPainter;

/// An item that shows a small picture painted by the subclass, in device pixels and only when it changed.
/// Works the same with and without a graphics card. The picture is painted while the interface thread waits,
/// so painting may use what belongs to that thread.
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
