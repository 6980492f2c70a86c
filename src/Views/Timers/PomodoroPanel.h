#pragma once

#include "Services/Scheduler.h"

#include <QQmlComponent>

class PanelWindow;
class TimersViewModel;

/// Opens the pomodoro panel whenever the timers ask for it, and closes it again. Its window is made while
/// nobody is waiting for it, and kept with all that it has drawn; what it shows starts fresh at each opening.
class PomodoroPanel : public QObject
{
    Q_OBJECT

public:
    PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, Scheduler &scheduler,
                  QObject *parent = nullptr);
    ~PomodoroPanel() override;

    /// Null until it was prepared.
    PanelWindow *window() const { return m_window.get(); }
    void prepareSoon();
    void prepare();

private:
    void open(const QRect &opener);
    void close();

    TimersViewModel &m_timers;
    Scheduler &m_scheduler;
    QQmlComponent m_component;
    std::unique_ptr<PanelWindow> m_window;
    ScheduledCall m_preparation;
    ScheduledCall m_rest;
    bool m_isResting = true;
};
