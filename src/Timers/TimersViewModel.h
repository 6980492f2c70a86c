#pragma once

#include "Services/Scheduler.h"
#include "Timers/FlowTimer.h"
#include "Timers/PomodoroViewModel.h"

#include <QRect>

class AppState;
class Pasteboard;
class PomodoroTimer;

/// The timers in the window: the flow timer, the label of the pomodoro, which opens its panel, and whether
/// the tray shows this label instead.
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
    /// The remaining time while the pomodoro runs, otherwise empty.
    QString labelText() const;
    /// The accessible name of the label.
    QString labelName() const;
    bool isInTray() const { return m_isInTray; }
    bool isPanelOpen() const { return m_isPanelOpen; }

    void setInTray(bool inTray);

    PomodoroViewModel &panel() { return m_panel; }
    /// Opens the panel beside `opener`, a rectangle on the screen, or closes it if it is open.
    Q_INVOKABLE void togglePanel(const QRect &opener);
    Q_INVOKABLE void closePanel();
    /// Called when the panel loses the focus: closes it, unless the capture field has text. If the focus was
    /// lost by a press on the label, the following click does not open the panel again.
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
