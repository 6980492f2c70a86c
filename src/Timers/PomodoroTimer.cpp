#include "Timers/PomodoroTimer.h"

#include "Store/ChangeScope.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

PomodoroTimer::PomodoroTimer(Scheduler &scheduler, QObject *parent) : QObject(parent), m_scheduler(scheduler)
{
}

QString PomodoroTimer::displayTime() const
{
    return u"%1:%2"_s.arg(m_timeRemaining / 60, 2, 10, '0'_L1).arg(m_timeRemaining % 60, 2, 10, '0'_L1);
}

void PomodoroTimer::start()
{
    ChangeScope changes(*this);
    changes.assign(m_isRunning, true, &PomodoroTimer::isRunningChanged);
    if (m_timer)
        m_lostTimers.push_back(std::move(*m_timer));
    m_timer = m_scheduler.every(1s, [this] { tick(); });
}

void PomodoroTimer::pause()
{
    ChangeScope changes(*this);
    changes.assign(m_isRunning, false, &PomodoroTimer::isRunningChanged);
    m_timer.reset();
}

void PomodoroTimer::reset()
{
    ChangeScope changes(*this);
    changes.assign(m_timeRemaining, phaseLength(), &PomodoroTimer::timeRemainingChanged);
    changes.assign(m_isRunning, false, &PomodoroTimer::isRunningChanged);
    m_timer.reset();
}

void PomodoroTimer::tick()
{
    if (m_timeRemaining < 1)
        completePhase();
    else
        ChangeScope(*this).assign(m_timeRemaining, m_timeRemaining - 1, &PomodoroTimer::timeRemainingChanged);
}

void PomodoroTimer::completePhase()
{
    ChangeScope changes(*this);
    m_timer.reset();
    changes.assign(m_isRunning, false, &PomodoroTimer::isRunningChanged);
    if (m_isFocusPhase)
        changes.assign(m_sessionCount, m_sessionCount + 1, &PomodoroTimer::sessionCountChanged);
    changes.assign(m_isFocusPhase, !m_isFocusPhase, &PomodoroTimer::isFocusPhaseChanged);
    changes.assign(m_timeRemaining, phaseLength(), &PomodoroTimer::timeRemainingChanged);
}
