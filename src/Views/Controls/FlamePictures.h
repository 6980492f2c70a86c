#pragma once

#include "PictureItem.h"

#include <QColor>
#include <QtQml/qqml.h>

/// The flame without glow, in the size of the item, with a vertical gradient.
class FlameShape : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QColor topColor MEMBER m_topColor NOTIFY coloursChanged)
    Q_PROPERTY(QColor middleColor MEMBER m_middleColor NOTIFY coloursChanged)
    Q_PROPERTY(QColor footColor MEMBER m_footColor NOTIFY coloursChanged)
    QML_ELEMENT

public:
    explicit FlameShape(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void coloursChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    QColor m_topColor;
    QColor m_middleColor;
    QColor m_footColor;
};

/// The glow of a flame: a flame of `flameSize`, blurred by `radius` and centred in the item. The implicit
/// size includes the blur.
class FlameGlow : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY glowChanged)
    Q_PROPERTY(qreal flameSize MEMBER m_flameSize NOTIFY glowChanged)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY glowChanged)
    QML_ELEMENT

public:
    explicit FlameGlow(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void glowChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    QColor m_color;
    qreal m_flameSize = 0;
    qreal m_radius = 0;
};
