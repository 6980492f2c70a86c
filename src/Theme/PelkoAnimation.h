#pragma once

#include "Spring.h"

#include <QObject>

/// The duration and easing curve of a spring, for animations. Copies share the curve.
class SpringMotion
{
    Q_GADGET
    Q_PROPERTY(int duration READ duration CONSTANT)
    Q_PROPERTY(QEasingCurve curve READ curve CONSTANT)

public:
    SpringMotion() = default;
    explicit SpringMotion(const Spring &spring);

    /// Milliseconds.
    int duration() const { return m_duration; }
    QEasingCurve curve() const { return m_curve; }

private:
    int m_duration = 0;
    QEasingCurve m_curve;
};

/// The springs of the animated controls, from the fastest to the slowest.
class PelkoAnimation : public QObject
{
    Q_OBJECT
    Q_PROPERTY(SpringMotion micro READ micro CONSTANT)
    Q_PROPERTY(SpringMotion smooth READ smooth CONSTANT)
    Q_PROPERTY(SpringMotion bouncy READ bouncy CONSTANT)
    Q_PROPERTY(SpringMotion settle READ settle CONSTANT)

public:
    static constexpr Spring microSpring{0.15, 0.90};
    static constexpr Spring smoothSpring{0.35, 0.82};
    static constexpr Spring bouncySpring{0.40, 0.70};
    static constexpr Spring settleSpring{0.50, 0.85};

    explicit PelkoAnimation(QObject *parent = nullptr);

    SpringMotion micro() const;
    SpringMotion smooth() const;
    SpringMotion bouncy() const;
    SpringMotion settle() const;

    /// Returns a motion for a control with a spring of its own. Bind it to a property, so that it is computed
    /// once.
    Q_INVOKABLE SpringMotion spring(qreal response, qreal dampingFraction) const;
};
