#include "ProgressRing.h"

#include <QConicalGradient>
#include <QPainter>
#include <QtMath>

namespace
{

constexpr int visibleSteps = 2400; // in a full ring
constexpr qreal fullCircle = 360;
constexpr qreal top = 90;
constexpr int sixteenths = 16; // of a degree: QPainter's unit of angles

constexpr qreal shortArc = 0.06;

/// Returns the colour of the tail. A short arc is too short for the whole gradient.
QColor beginning(const QColor &tail, const QColor &head, qreal progress)
{
    const float part = float(qMin(1.0, progress / shortArc));
    return QColor::fromRgbF(head.redF() + part * (tail.redF() - head.redF()),
                            head.greenF() + part * (tail.greenF() - head.greenF()),
                            head.blueF() + part * (tail.blueF() - head.blueF()));
}

QBrush alongTheArc(const QPointF &centre, qreal progress, const QColor &tail, const QColor &head)
{
    // A conical gradient runs counterclockwise, so its colours are reversed.
    QConicalGradient gradient(centre, top);
    gradient.setColorAt(0, tail);
    gradient.setColorAt(1 - progress, head);
    gradient.setColorAt(qMax(0.0, 1 - progress - 0.001), head);
    gradient.setColorAt(1, tail);
    return gradient;
}

} // namespace

ProgressRing::ProgressRing(QQuickItem *parent) : PictureItem(parent)
{
    connect(this, &ProgressRing::looksChanged, this, &ProgressRing::repaintPicture);
}

void ProgressRing::setProgress(qreal progress)
{
    const qreal inside = qBound(0.0, progress, 1.0);
    if (qRound(inside * visibleSteps) == qRound(m_progress * visibleSteps))
        return;
    m_progress = inside;
    repaintPicture();
    Q_EMIT progressChanged();
}

void ProgressRing::paintPicture(QPainter &painter, const QSizeF &size)
{
    const qreal inset = m_margin + m_stroke / 2;
    const QRectF ring = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(m_trackColor, m_stroke));
    painter.drawEllipse(ring);
    if (m_progress <= 0)
        return;
    const qreal angle = qDegreesToRadians(top - fullCircle * m_progress);
    const QPointF tail(ring.center().x(), ring.top());
    const QPointF head = ring.center() + QPointF(qCos(angle), -qSin(angle)) * ring.width() / 2;
    paintGlow(painter, head);
    const QColor tailColor = beginning(m_tailColor, m_headColor, m_progress);
    const QBrush colours = alongTheArc(ring.center(), m_progress, tailColor, m_headColor);
    painter.setPen(QPen(colours, m_stroke, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(ring, qRound(top * sixteenths), -qRound(fullCircle * m_progress * sixteenths));
    paintCap(painter, tail, tailColor);
    paintCap(painter, head, m_headColor);
}

void ProgressRing::paintCap(QPainter &painter, const QPointF &centre, const QColor &color) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(centre, m_stroke / 2, m_stroke / 2);
}

void ProgressRing::paintGlow(QPainter &painter, const QPointF &head) const
{
    const qreal reach = m_margin + m_stroke / 2;
    QRadialGradient glow(head, reach);
    QColor color = m_headColor;
    color.setAlphaF(0.42F);
    glow.setColorAt(0, color);
    color.setAlphaF(0.14F);
    glow.setColorAt(0.5, color);
    color.setAlphaF(0);
    glow.setColorAt(1, color);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(head, reach, reach);
}
