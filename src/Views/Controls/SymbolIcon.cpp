#include "SymbolIcon.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

/// Returns the parsed drawing; drawings are cached, because a page shows a few symbols many times.
QSvgRenderer &drawing(const QString &name)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> drawings;
    std::shared_ptr<QSvgRenderer> &found = drawings[name];
    if (!found) {
        found = std::make_shared<QSvgRenderer>();
        QFile file(u":/qt/qml/Pelko/Theme/symbols/%1.svg"_s.arg(name));
        if (file.open(QIODevice::ReadOnly))
            found->load(file.readAll());
    }
    return *found;
}

} // namespace

SymbolIcon::SymbolIcon(QQuickItem *parent) : PictureItem(parent) {}

void SymbolIcon::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    repaintPicture();
    Q_EMIT nameChanged();
}

void SymbolIcon::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    repaintPicture();
    Q_EMIT colorChanged();
}

void SymbolIcon::setSize(qreal size)
{
    if (implicitWidth() == size)
        return;
    setImplicitSize(size, size);
    Q_EMIT sizeChanged();
}

void SymbolIcon::paintPicture(QPainter &painter, const QSizeF &size)
{
    const qreal edge = qMin(size.width(), size.height());
    const QRectF square((size.width() - edge) / 2, (size.height() - edge) / 2, edge, edge);
    QSvgRenderer &symbol = drawing(m_name);
    if (!symbol.isValid())
        return;
    symbol.render(&painter, square);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF({}, size), m_color);
}
