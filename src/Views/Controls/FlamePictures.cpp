#include "FlamePictures.h"

#include "SoftBlur.h"
#include "Theme/FlameCurve.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace
{

QPainterPath flameOutline()
{
    QPainterPath path(flameStart);
    for (const auto &[first, second, end] : flameCurves)
        path.cubicTo(first, second, end);
    return path;
}

} // namespace

FlameShape::FlameShape(QQuickItem *parent) : PictureItem(parent)
{
    connect(this, &FlameShape::coloursChanged, this, &FlameShape::repaintPicture);
}

void FlameShape::paintPicture(QPainter &painter, const QSizeF &size)
{
    QLinearGradient gradient(0, flameTip, 0, flameFoot);
    gradient.setColorAt(0, m_topColor);
    gradient.setColorAt(0.5, m_middleColor);
    gradient.setColorAt(1, m_footColor);
    painter.scale(size.width() / flameGrid, size.height() / flameGrid);
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
    shapePainter.scale(m_flameSize / flameGrid, m_flameSize / flameGrid);
    shapePainter.fillPath(flameOutline(), m_color);
    shapePainter.end();
    QImage glow = softened(shape, m_radius * ratio, m_color);
    glow.setDevicePixelRatio(ratio);
    painter.drawImage(0, 0, glow);
}
