#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// The soft shadow of a rounded rectangle of the item's size. It is drawn only outside the rectangle, so that
/// it does not darken translucent glass. A small blurred picture is drawn as a nine-patch, so a growing item
/// needs no new blur, and no shader is needed.
class SoftShadow : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY shadowChanged)
    Q_PROPERTY(qreal blur MEMBER m_blur NOTIFY shadowChanged)
    Q_PROPERTY(qreal drop MEMBER m_drop NOTIFY shadowChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY shadowChanged)
    QML_ELEMENT

public:
    explicit SoftShadow(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void shadowChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    qreal margin() const;
    /// Returns the size of the smallest rectangle whose shadow can be stretched to this one.
    QSizeF pictureShape() const;
    QImage picture(const QSizeF &shape, qreal ratio) const;

    qreal m_radius = 0;
    qreal m_blur = 0;
    qreal m_drop = 0;
    QColor m_color = Qt::black;
    QSizeF m_paintedShape;
    bool m_isStale = true;
};
