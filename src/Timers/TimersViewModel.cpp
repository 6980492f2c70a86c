#include "Timers/TimersViewModel.h"

#include "Store/ChangeScope.h"
#include "Timers/PomodoroText.h"
#include "Timers/PomodoroTimer.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto clickTime = 300ms; // the longest time between a press and its click
}

TimersViewModel::TimersViewModel(PomodoroTimer &timer, FlowTimer &flow, AppState &appState,
                                 Pasteboard &pasteboard, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_timer(timer)
    , m_flow(flow)
    , m_scheduler(scheduler)
    , m_panel(timer, appState, pasteboard, scheduler)
{
    connect(&m_timer, &PomodoroTimer::isRunningChanged, this, &TimersViewModel::isRunningChanged);
    connect(&m_timer, &PomodoroTimer::isRunningChanged, this, &TimersViewModel::labelTextChanged);
    connect(&m_timer, &PomodoroTimer::timeRemainingChanged, this, &TimersViewModel::labelTextChanged);
}

bool TimersViewModel::isRunning() const
{
    return m_timer.isRunning();
}

QString TimersViewModel::labelText() const
{
    return m_timer.isRunning() ? m_timer.displayTime() : QString();
}

QString TimersViewModel::labelName() const
{
    return m_timer.isRunning() ? tr("Timer, %1").arg(timeLeftInWords(m_timer)) : tr("Timer");
}

void TimersViewModel::setInTray(bool inTray)
{
    ChangeScope(*this).assign(m_isInTray, inTray, &TimersViewModel::isInTrayChanged);
}

void TimersViewModel::togglePanel(const QRect &opener)
{
    if (m_isPanelOpen) {
        closePanel();
        return;
    }
    if (m_hasJustLeft)
        return;
    ChangeScope(*this).assign(m_isPanelOpen, true, &TimersViewModel::isPanelOpenChanged);
    Q_EMIT panelOpened(opener);
}

void TimersViewModel::closePanel()
{
    if (!m_isPanelOpen)
        return;
    ChangeScope(*this).assign(m_isPanelOpen, false, &TimersViewModel::isPanelOpenChanged);
    Q_EMIT panelClosed();
}

void TimersViewModel::leavePanel()
{
    if (!m_isPanelOpen || m_panel.canSubmit())
        return;
    m_hasJustLeft = true;
    m_afterLeaving = m_scheduler.after(clickTime, [this] { m_hasJustLeft = false; });
    closePanel();
}
