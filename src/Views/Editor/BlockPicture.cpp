#include "BlockPicture.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

namespace
{

// The widest that a page shows a picture, at twice the density; more would only cost memory.
constexpr int widestDecoded = 1280;

QImage decode(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > widestDecoded)
        reader.setScaledSize(size.scaled(widestDecoded, size.height(), Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace

qreal BlockPicture::aspectRatio() const
{
    return m_image.isNull() ? 0 : qreal(m_image.height()) / m_image.width();
}

void BlockPicture::setImageData(const QByteArray &bytes)
{
    if (m_imageData == bytes)
        return;
    m_imageData = bytes;
    m_image = decode(bytes);
    repaintPicture();
    Q_EMIT imageDataChanged();
}

void BlockPicture::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    repaintPicture();
    Q_EMIT radiusChanged();
}

void BlockPicture::paintPicture(QPainter &painter, const QSizeF &size)
{
    QPainterPath shape;
    shape.addRoundedRect(QRectF({}, size), m_radius, m_radius);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setClipPath(shape);
    painter.drawImage(QRectF({}, size), m_image);
}
