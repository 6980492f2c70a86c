#pragma once

#include "PictureItem.h"

#include <QColor>
#include <QtQml/qqml.h>

/// A dashed line with rounded corners along the inside of the item's edge.
class DashedOutline : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

    QColor color() const { return m_color; }
    qreal radius() const { return m_radius; }

    void setColor(const QColor &color);
    void setRadius(qreal radius);

Q_SIGNALS:
    void colorChanged();
    void radiusChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    QColor m_color = Qt::white;
    qreal m_radius = 0;
};
