#include "Spring.h"

#include <QList>
#include <QPointF>
#include <QtMath>

namespace
{

qreal frequency(const Spring &spring)
{
    return 2 * M_PI / spring.response;
}

qreal dampedFrequency(const Spring &spring)
{
    return frequency(spring) * qSqrt(1 - spring.dampingFraction * spring.dampingFraction);
}

bool isCritical(const Spring &spring)
{
    return spring.dampingFraction >= 1;
}

} // namespace

qreal Spring::position(qreal seconds) const
{
    const qreal omega = frequency(*this);
    if (isCritical(*this))
        return 1 - qExp(-omega * seconds) * (1 + omega * seconds);
    const qreal decay = dampingFraction * omega;
    const qreal damped = dampedFrequency(*this);
    return 1 - qExp(-decay * seconds) * (qCos(damped * seconds) + decay / damped * qSin(damped * seconds));
}

qreal Spring::velocity(qreal seconds) const
{
    const qreal omega = frequency(*this);
    if (isCritical(*this))
        return omega * omega * seconds * qExp(-omega * seconds);
    const qreal damped = dampedFrequency(*this);
    return omega * omega / damped * qExp(-dampingFraction * omega * seconds) * qSin(damped * seconds);
}

Spring::State Spring::pulledToZero(State start, qreal seconds) const
{
    const qreal omega = frequency(*this);
    if (isCritical(*this)) {
        const qreal push = start.velocity + omega * start.position;
        const qreal fading = qExp(-omega * seconds);
        return {(start.position + push * seconds) * fading,
                (start.velocity - omega * push * seconds) * fading};
    }
    const qreal decay = dampingFraction * omega;
    const qreal damped = dampedFrequency(*this);
    const qreal cosine = qExp(-decay * seconds) * qCos(damped * seconds);
    const qreal sine = qExp(-decay * seconds) * qSin(damped * seconds) / damped;
    return {start.position * cosine + (start.velocity + decay * start.position) * sine,
            start.velocity * cosine - (decay * start.velocity + omega * omega * start.position) * sine};
}

qreal Spring::settlingTime() const
{
    // Searching backwards from an upper bound finds the last excursion for any damping.
    const qreal step = response / 2000;
    qreal seconds = 2 * response / dampingFraction;
    while (qAbs(1 - position(seconds)) < settleThreshold)
        seconds -= step;
    return seconds + step;
}

int Spring::duration() const
{
    return qRound(settlingTime() * 1000);
}

QEasingCurve Spring::curve() const
{
    Q_ASSERT(response > 0 && dampingFraction > 0 && dampingFraction <= 1);
    const qreal total = settlingTime();
    QEasingCurve curve(QEasingCurve::BezierSpline);
    QPointF from(0, 0);
    qreal fromSlope = 0;
    for (int i = 1; i <= segmentCount; ++i) {
        const qreal moment = qPow(qreal(i) / segmentCount, 1.4);
        const bool isLast = i == segmentCount;
        const QPointF to = isLast ? QPointF(1, 1) : QPointF(moment, position(moment * total));
        const qreal toSlope = velocity(moment * total) * total;
        const qreal third = (to.x() - from.x()) / 3;
        curve.addCubicBezierSegment(from + QPointF(third, third * fromSlope),
                                    to - QPointF(third, third * toSlope), to);
        from = to;
        fromSlope = toSlope;
    }
    // Qt 6.4 has room for ten segments and writes beyond it without a check.
    Q_ASSERT(curve.toCubicSpline().size() <= 3 * segmentCount);
    return curve;
}
