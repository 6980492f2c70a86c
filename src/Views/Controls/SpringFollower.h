#pragma once

#include "Theme/Spring.h"

#include <QAbstractAnimation>
#include <QObject>
#include <QtQml/qqml.h>

#include <memory>

/// A value that follows its goal like a spring and keeps its velocity when the goal changes, which a
/// restarted animation cannot. It starts at its first goal and is updated only while it moves.
class SpringFollower : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal goal READ goal WRITE setGoal NOTIFY goalChanged)
    Q_PROPERTY(qreal value READ value NOTIFY valueChanged)
    Q_PROPERTY(qreal response READ response WRITE setResponse NOTIFY springChanged)
    Q_PROPERTY(qreal dampingFraction READ dampingFraction WRITE setDampingFraction NOTIFY springChanged)
    Q_PROPERTY(bool carried READ isCarried WRITE setCarried NOTIFY carriedChanged)
    Q_PROPERTY(bool instant READ isInstant WRITE setInstant NOTIFY instantChanged)
    QML_ELEMENT

public:
    explicit SpringFollower(QObject *parent = nullptr);
    ~SpringFollower() override;

    qreal goal() const { return m_goal; }
    qreal value() const { return m_goal + m_distance.position; }
    qreal response() const { return m_spring.response; }
    qreal dampingFraction() const { return m_spring.dampingFraction; }
    /// While set, a change of the goal moves the value by the same amount at once; the remaining distance
    /// continues to shrink.
    bool isCarried() const { return m_isCarried; }
    /// While set, the value jumps to the goal; for reduced motion.
    bool isInstant() const { return m_isInstant; }

    void setGoal(qreal goal);
    void setResponse(qreal seconds);
    void setDampingFraction(qreal fraction);
    void setCarried(bool carried);
    void setInstant(bool instant);

Q_SIGNALS:
    void goalChanged();
    void valueChanged();
    void springChanged();
    void carriedChanged();
    void instantChanged();

private:
    class Ticks;

    void leap();
    void moveOn(qreal seconds);
    bool isSettled() const;

    Spring m_spring{0.35, 0.82};
    qreal m_goal = 0;
    Spring::State m_distance;
    bool m_hasGoal = false;
    bool m_isCarried = false;
    bool m_isInstant = false;
    std::unique_ptr<Ticks> m_ticks;
};
