#include "Timers/FlowTimer.h"

#include "Store/ChangeScope.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

FlowTimer::FlowTimer(Scheduler &scheduler, QObject *parent) : QObject(parent), m_scheduler(scheduler) {}

QString FlowTimer::displayTime() const
{
    return u"%1:%2"_s.arg(m_remaining / 60).arg(m_remaining % 60, 2, 10, '0'_L1);
}

void FlowTimer::start()
{
    if (m_isRunning)
        return;
    m_timer = m_scheduler.every(1s, [this] { tick(); });
    become(true, m_remaining == 0 ? totalSeconds : m_remaining);
}

void FlowTimer::stop()
{
    m_timer.reset();
    become(false, m_remaining);
}

void FlowTimer::tick()
{
    if (m_remaining < 1)
        stop();
    else
        become(m_isRunning, m_remaining - 1);
}

void FlowTimer::become(bool running, qint64 remaining)
{
    const bool wasActive = isActive();
    ChangeScope changes(*this);
    changes.assign(m_remaining, remaining, &FlowTimer::remainingChanged);
    changes.assign(m_isRunning, running, &FlowTimer::isRunningChanged);
    if (isActive() != wasActive)
        changes.announce(&FlowTimer::isActiveChanged);
}
