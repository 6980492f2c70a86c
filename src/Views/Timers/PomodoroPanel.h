#pragma once

#include "Services/Scheduler.h"

#include <QPointer>
#include <QQmlComponent>

class PanelWindow;
class PomodoroViewModel;
class TimersViewModel;

/// Opens a fresh pomodoro panel whenever the timers ask for one, and takes it away again. The next one is
/// made ready, unseen, while nobody is waiting for it.
class PomodoroPanel : public QObject
{
    Q_OBJECT

public:
    PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, Scheduler &scheduler,
                  QObject *parent = nullptr);
    ~PomodoroPanel() override;

    /// The panel that is open or ready to be.
    PanelWindow *window() const;
    void prepareSoon();
    void prepare();

private:
    void open(const QRect &opener);
    void close();

    TimersViewModel &m_timers;
    Scheduler &m_scheduler;
    QQmlComponent m_component;
    QPointer<PanelWindow> m_window;
    QPointer<PomodoroViewModel> m_panel; // of that window
    ScheduledCall m_preparation;
};
