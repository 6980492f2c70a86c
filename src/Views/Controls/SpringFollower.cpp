#include "SpringFollower.h"

/// Updates the follower once per frame while it moves.
class SpringFollower::Ticks : public QAbstractAnimation
{
public:
    explicit Ticks(SpringFollower &follower) : m_follower(follower) {}

    int duration() const override { return -1; }

    void restart()
    {
        m_last = 0;
        if (state() != Running)
            start();
        else
            m_last = currentTime();
    }

protected:
    void updateCurrentTime(int milliseconds) override
    {
        const int passed = milliseconds - m_last;
        m_last = milliseconds;
        if (passed > 0)
            m_follower.moveOn(passed / 1000.0);
    }

private:
    SpringFollower &m_follower;
    int m_last = 0;
};

SpringFollower::SpringFollower(QObject *parent) : QObject(parent), m_ticks(std::make_unique<Ticks>(*this)) {}

SpringFollower::~SpringFollower() = default;

void SpringFollower::setGoal(qreal goal)
{
    if (m_hasGoal && m_goal == goal)
        return;
    if (!m_isCarried)
        m_distance.position += m_goal - goal;
    m_goal = goal;
    if (!m_hasGoal || m_isInstant)
        leap();
    else if (m_isCarried)
        Q_EMIT valueChanged();
    else
        m_ticks->restart();
    m_hasGoal = true;
    Q_EMIT goalChanged();
}

void SpringFollower::setResponse(qreal seconds)
{
    if (m_spring.response == seconds)
        return;
    m_spring.response = seconds;
    Q_EMIT springChanged();
}

void SpringFollower::setDampingFraction(qreal fraction)
{
    if (m_spring.dampingFraction == fraction)
        return;
    m_spring.dampingFraction = fraction;
    Q_EMIT springChanged();
}

void SpringFollower::setCarried(bool carried)
{
    if (m_isCarried == carried)
        return;
    m_isCarried = carried;
    Q_EMIT carriedChanged();
}

void SpringFollower::setInstant(bool instant)
{
    if (m_isInstant == instant)
        return;
    m_isInstant = instant;
    if (instant)
        leap();
    Q_EMIT instantChanged();
}

void SpringFollower::leap()
{
    m_ticks->stop();
    m_distance = {};
    Q_EMIT valueChanged();
}

void SpringFollower::moveOn(qreal seconds)
{
    m_distance = m_spring.pulledToZero(m_distance, seconds);
    if (isSettled())
        leap();
    else
        Q_EMIT valueChanged();
}

bool SpringFollower::isSettled() const
{
    return qAbs(m_distance.position) < Spring::settleThreshold &&
           qAbs(m_distance.velocity) * m_spring.response < 10 * Spring::settleThreshold;
}
