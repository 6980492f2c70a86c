#include "FlamePictures.h"

#include "SoftBlur.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace
{

constexpr qreal gridSize = 24;
constexpr qreal tip = 1.2;
constexpr qreal foot = 22.8;

/// The same outline as the symbol "flame.fill".
QPainterPath flameOutline()
{
    QPainterPath path(QPointF(10.6, tip));
    path.cubicTo(11.1, 4.3, 9.6, 6.5, 7.9, 8.9);
    path.cubicTo(6.3, 11.1, 4.6, 13.2, 4.6, 15.9);
    path.cubicTo(4.6, 19.8, 7.9, foot, 12, foot);
    path.cubicTo(16.1, foot, 19.4, 19.8, 19.4, 15.7);
    path.cubicTo(19.4, 12.9, 18.2, 10.6, 16.6, 8.6);
    path.cubicTo(16.5, 10, 16, 11.1, 15, 11.9);
    path.cubicTo(15.2, 7.7, 13.6, 3.8, 10.6, tip);
    return path;
}

} // namespace

FlameShape::FlameShape(QQuickItem *parent) : PictureItem(parent)
{
    connect(this, &FlameShape::coloursChanged, this, &FlameShape::repaintPicture);
}

void FlameShape::paintPicture(QPainter &painter, const QSizeF &size)
{
    QLinearGradient gradient(0, tip, 0, foot);
    gradient.setColorAt(0, m_topColor);
    gradient.setColorAt(0.5, m_middleColor);
    gradient.setColorAt(1, m_footColor);
    painter.scale(size.width() / gridSize, size.height() / gridSize);
    painter.fillPath(flameOutline(), gradient);
}

FlameGlow::FlameGlow(QQuickItem *parent) : PictureItem(parent)
{
    connect(this, &FlameGlow::glowChanged, this, [this] {
        const qreal edge = m_flameSize + 2 * softReach(m_radius) + 2;
        setImplicitSize(edge, edge);
        repaintPicture();
    });
}

void FlameGlow::paintPicture(QPainter &painter, const QSizeF &size)
{
    QImage shape(painter.device()->width(), painter.device()->height(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    const qreal ratio = painter.device()->devicePixelRatio();
    QPainter shapePainter(&shape);
    shapePainter.setRenderHint(QPainter::Antialiasing);
    shapePainter.scale(ratio, ratio);
    shapePainter.translate((size.width() - m_flameSize) / 2, (size.height() - m_flameSize) / 2);
    shapePainter.scale(m_flameSize / gridSize, m_flameSize / gridSize);
    shapePainter.fillPath(flameOutline(), m_color);
    shapePainter.end();
    QImage glow = softened(shape, m_radius * ratio, m_color);
    glow.setDevicePixelRatio(ratio);
    painter.drawImage(0, 0, glow);
}
