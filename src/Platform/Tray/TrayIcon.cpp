#include "Platform/Tray/TrayIcon.h"

#include "Theme/FlameCurve.h"
#include "Timers/TrayIconState.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
constexpr QColor flameTop(0xF8, 0xB0, 0x62);
constexpr QColor flameMiddle(0xEA, 0x83, 0x42);
constexpr QColor flameFootColor(0xD4, 0x60, 0x2F);
constexpr QColor ember(0xB3, 0x40, 0x24);
constexpr QColor amberSoft(0xF0, 0xA1, 0x73);
constexpr QColor coin(0x17, 0x14, 0x12);
constexpr QColor track(255, 255, 255, 41);
constexpr QColor ink(0xFF, 0xF6, 0xEE);
constexpr qreal fullCircle = 360 * 16; // as the painter counts
constexpr qreal top = 90;
constexpr qreal shortArc = 0.05;

QPainterPath flameOutline()
{
    QPainterPath path(flameStart);
    for (const auto &[first, second, end] : flameCurves)
        path.cubicTo(first, second, end);
    return path;
}

void paintFlame(QPainter &painter, int size, qreal opacity)
{
    QLinearGradient gradient(0, flameTip, 0, flameFoot);
    gradient.setColorAt(0, flameTop);
    gradient.setColorAt(0.5, flameMiddle);
    gradient.setColorAt(1, flameFootColor);
    painter.setOpacity(opacity);
    painter.scale(size / flameGrid, size / flameGrid);
    painter.fillPath(flameOutline(), gradient);
}

void paintRing(QPainter &painter, int size, const TrayIconState &state)
{
    const qreal stroke = qMax(2.0, 0.085 * size);
    const QRectF ring = QRectF(0, 0, size, size).adjusted(stroke / 2, stroke / 2, -stroke / 2, -stroke / 2);
    painter.setPen(QPen(track, stroke));
    painter.drawEllipse(ring);
    // The smallest arc that is visible, so that the ring shows from the first second.
    const qreal spent = qMax(state.progress, 0.01);
    QConicalGradient colours(ring.center(), top);
    colours.setColorAt(0, ember);
    colours.setColorAt(1 - spent, amberSoft);
    // A very short arc has no room for two colours.
    colours.setColorAt(1, spent < shortArc ? amberSoft : ember);
    painter.setOpacity(state.flameOpacity);
    painter.setPen(QPen(colours, stroke, Qt::SolidLine, spent < 0.9 ? Qt::RoundCap : Qt::FlatCap));
    painter.drawArc(ring, qRound(top * 16), -qRound(fullCircle * spent));
    painter.setOpacity(1);
}

qreal digitHeight(int size)
{
    // Height of the digits by icon size, chosen by eye; other sizes are interpolated.
    constexpr std::pair<int, qreal> heights[] = {{22, 11}, {24, 12}, {32, 15.5}, {48, 22}};
    const auto *upper =
        std::ranges::find_if(heights, [size](const auto &pair) { return size <= pair.first; });
    if (upper == std::end(heights))
        return 22.0 * size / 48;
    if (upper->first == size || upper == std::begin(heights))
        return upper->second * size / upper->first;
    const auto *lower = std::prev(upper);
    const qreal part = qreal(size - lower->first) / (upper->first - lower->first);
    return lower->second + part * (upper->second - lower->second);
}

void paintMinutes(QPainter &painter, int size, int minutes)
{
    QFont font(u"Inter"_s);
    font.setWeight(QFont::Bold);
    font.setPointSizeF(digitHeight(size) * 72 / painter.device()->logicalDpiY());
    const QFontMetricsF metrics(font);
    const QString text = QString::number(minutes);
    const qreal x = (size - metrics.horizontalAdvance(text)) / 2;
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QPointF(x, (size + metrics.capHeight()) / 2), text);
}
} // namespace

QImage trayIcon(const TrayIconState &state, int size, TrayLabels labels)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!state.isRunning || labels == TrayLabels::drawn) {
        paintFlame(painter, size, state.flameOpacity);
        return image;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(coin);
    painter.drawEllipse(0, 0, size, size);
    painter.setBrush(Qt::NoBrush);
    paintRing(painter, size, state);
    paintMinutes(painter, size, state.minutesLeft);
    return image;
}
