#pragma once

#include "Services/Scheduler.h"
#include "Timers/FlowTimer.h"
#include "Timers/PomodoroViewModel.h"

#include <QRect>

class AppState;
class Pasteboard;
class PomodoroTimer;

/// What the windows know of the timers: the flow timer, the label that tells how the pomodoro stands and
/// opens its panel, and whether a tray shows that label already.
class TimersViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(FlowTimer *flow READ flow CONSTANT)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(QString labelText READ labelText NOTIFY labelTextChanged)
    Q_PROPERTY(QString labelName READ labelName NOTIFY labelTextChanged)
    Q_PROPERTY(bool isInTray READ isInTray NOTIFY isInTrayChanged)
    Q_PROPERTY(bool isPanelOpen READ isPanelOpen NOTIFY isPanelOpenChanged)

public:
    TimersViewModel(PomodoroTimer &timer, FlowTimer &flow, AppState &appState, Pasteboard &pasteboard,
                    Scheduler &scheduler, QObject *parent = nullptr);

    FlowTimer *flow() const { return &m_flow; }
    bool isRunning() const;
    /// The remaining time while the pomodoro runs, otherwise nothing: a paused timer and an idle one look
    /// the same.
    QString labelText() const;
    /// The same in words, for who cannot see a flame.
    QString labelName() const;
    bool isInTray() const { return m_isInTray; }
    bool isPanelOpen() const { return m_isPanelOpen; }

    void setInTray(bool inTray);

    PomodoroViewModel &panel() { return m_panel; }
    /// Opens the panel at a place of the screen or closes the one that is open.
    Q_INVOKABLE void togglePanel(const QRect &opener);
    Q_INVOKABLE void closePanel();
    /// Something else took the keyboard: the panel goes, unless a spark is being written in it. What took it
    /// may be a press on the very label that opened the panel, so the click that follows is not to open it
    /// again.
    Q_INVOKABLE void leavePanel();

Q_SIGNALS:
    void isRunningChanged();
    void labelTextChanged();
    void isInTrayChanged();
    void isPanelOpenChanged();
    void panelOpened(const QRect &opener);
    void panelClosed();

private:
    PomodoroTimer &m_timer;
    FlowTimer &m_flow;
    Scheduler &m_scheduler;
    PomodoroViewModel m_panel;
    bool m_isInTray = false;
    bool m_isPanelOpen = false;
    bool m_hasJustLeft = false;
    ScheduledCall m_afterLeaving;
};
