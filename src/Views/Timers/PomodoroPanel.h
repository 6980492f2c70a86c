#pragma once

#include <QPointer>
#include <QQmlComponent>

class PanelWindow;
class TimersViewModel;

/// Opens a fresh pomodoro panel whenever the timers ask for one, and takes it away again.
class PomodoroPanel : public QObject
{
    Q_OBJECT

public:
    PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, QObject *parent = nullptr);
    ~PomodoroPanel() override;

    PanelWindow *window() const;

private:
    void open(const QRect &opener);
    void close();

    TimersViewModel &m_timers;
    QQmlComponent m_component;
    QPointer<PanelWindow> m_window;
};
