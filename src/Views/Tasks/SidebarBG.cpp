#include "SidebarBG.h"

#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace
{
constexpr QSizeF drawnSize(240, 800);
const QColor dim(0, 0, 0, qRound(0.35 * 255));
} // namespace

void SidebarBG::paintPicture(QPainter &painter, const QSizeF &size)
{
    const QSizeF drawn = drawnSize.scaled(size, Qt::KeepAspectRatioByExpanding);
    QSvgRenderer drawing(u":/qt/qml/Pelko/Theme/SidebarBG.svg"_s);
    drawing.render(&painter, QRectF((size.width() - drawn.width()) / 2, size.height() - drawn.height(),
                                    drawn.width(), drawn.height()));
    painter.fillRect(QRectF({}, size), dim);
}
