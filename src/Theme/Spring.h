#pragma once

#include <QEasingCurve>
#include <QtGlobal>

/// A damped spring that starts at rest at 0 and settles at 1. Given by its response, the period in seconds it
/// would swing with undamped, and its damping fraction, where 1 is the least damping without an overshoot.
struct Spring {
    /// Where something is and how fast it moves, in units and units a second.
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

    /// Where the spring is, `seconds` after it was let go.
    qreal position(qreal seconds) const;
    /// How fast it is there, in whole ways a second.
    qreal velocity(qreal seconds) const;

    /// Where something that was at `start` is `seconds` later when the spring pulls it to 0.
    State pulledToZero(State start, qreal seconds) const;

    /// The moment, in seconds, from which the rest of the way stays below the threshold.
    qreal settlingTime() const;
    /// The same in whole milliseconds, as animations take it.
    int duration() const;
    /// The motion from 0 to 1 over `duration()` as an easing curve.
    QEasingCurve curve() const;

    friend bool operator==(const Spring &, const Spring &) = default;
};
