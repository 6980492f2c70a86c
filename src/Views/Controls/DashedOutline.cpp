#include "DashedOutline.h"

#include <QPainter>

void DashedOutline::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    repaintPicture();
    Q_EMIT colorChanged();
}

void DashedOutline::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    repaintPicture();
    Q_EMIT radiusChanged();
}

void DashedOutline::paintPicture(QPainter &painter, const QSizeF &size)
{
    constexpr qreal half = 0.5; // a line is drawn on both sides of its path
    QPen pen(m_color, 1);
    pen.setDashPattern({4, 3});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawRoundedRect(QRectF({}, size).adjusted(half, half, -half, -half), m_radius - half,
                            m_radius - half);
}
