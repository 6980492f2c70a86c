#pragma once

#include "Timers/TimersViewModel.h"
#include "support/ManualScheduler.h"

#include <QtQml/qqml.h>

/// The timers on a time that a view test moves.
class TimersBench : public QObject
{
    Q_OBJECT
    Q_PROPERTY(TimersViewModel *timers READ timers CONSTANT)

public:
    TimersViewModel *timers() { return &m_timers; }

    Q_INVOKABLE void advance(int milliseconds)
    {
        m_scheduler.advance(std::chrono::milliseconds(milliseconds));
    }
    Q_INVOKABLE void stopFlow() { m_flow.stop(); }

private:
    ManualScheduler m_scheduler;
    FlowTimer m_flow{m_scheduler};
    TimersViewModel m_timers{m_flow};
};
