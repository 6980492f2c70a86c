#include "FontScale.h"

#include <QGuiApplication>
#include <QScreen>

qreal FontScale::pixelsPerPoint() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() / 72 : 96.0 / 72;
}

QFont FontScale::face(const QString &family, qreal pixels, int weight, qreal tracking, bool italic) const
{
    QFont font(family);
    font.setPointSizeF(pixels / pixelsPerPoint());
    font.setWeight(QFont::Weight(weight));
    font.setItalic(italic);
    if (tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    return font;
}
