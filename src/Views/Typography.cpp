#include "Typography.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace
{

QString installedOr(const QString &family, const QString &otherwise)
{
    return QFontDatabase::hasFamily(family) ? family : otherwise;
}

} // namespace

Typography::Typography(QObject *parent)
    : QObject(parent)
    , m_textFamily(installedOr(u"Inter"_s, QGuiApplication::font().family()))
    , m_displayFamily(installedOr(u"Inter Display"_s, m_textFamily))
    , m_monoFamily(
          installedOr(u"JetBrains Mono"_s, QFontDatabase::systemFont(QFontDatabase::FixedFont).family()))
{
}

QFont Typography::face(const QString &family, qreal pixels, int weight, qreal tracking) const
{
    QFont font(family);
    font.setPointSizeF(pixels / pixelsPerPoint());
    font.setWeight(QFont::Weight(weight));
    if (tracking != 0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    return font;
}

QFont Typography::unshaped(QFont font)
{
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setKerning(false);
    return font;
}

qreal Typography::pixelsPerPoint() const
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() / 72 : 96.0 / 72;
}

QFont Typography::italic(QFont font)
{
    font.setItalic(true);
    return font;
}
