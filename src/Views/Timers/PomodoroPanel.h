#pragma once

#include "Services/Scheduler.h"

#include <QQmlComponent>

class PanelWindow;
class TimersViewModel;

/// Opens and closes the pomodoro panel when the timers request it. The window is created in advance and
/// hidden instead of closed, which makes opening fast; its state is reset when it closes.
class PomodoroPanel : public QObject
{
    Q_OBJECT

public:
    PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, Scheduler &scheduler,
                  QObject *parent = nullptr);
    ~PomodoroPanel() override;

    /// Null until it is created.
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
