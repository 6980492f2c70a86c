#pragma once

#include <QEasingCurve>
#include <QtGlobal>

/// A damped spring that starts at rest at 0 and settles at 1. `response` is the period in seconds of the
/// undamped spring; a damping fraction of 1 is the smallest without overshoot.
struct Spring {
    /// Position, and velocity in units per second.
    struct State {
        qreal position = 0;
        qreal velocity = 0;
    };

    /// The knots lie closer together at the start, where the spring moves fastest.
    static constexpr int segmentCount = 10;
    /// The remaining distance at which the spring counts as settled.
    static constexpr qreal settleThreshold = 0.001;

    qreal response;
    qreal dampingFraction;

    /// Returns the position `seconds` after the start.
    qreal position(qreal seconds) const;
    /// Returns the velocity at this time, per second.
    qreal velocity(qreal seconds) const;

    /// Returns the state after `seconds` when the spring moves from `start` to 0.
    State pulledToZero(State start, qreal seconds) const;

    /// Returns the time in seconds after which the remaining distance stays below the threshold.
    qreal settlingTime() const;
    /// Returns the settling time in whole milliseconds.
    int duration() const;
    /// Returns the motion from 0 to 1 over `duration()` as an easing curve.
    QEasingCurve curve() const;

    friend bool operator==(const Spring &, const Spring &) = default;
};
