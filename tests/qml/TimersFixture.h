#pragma once

#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "Views/Timers/PanelWindow.h"
#include "Views/Timers/PomodoroPanel.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPasteboard.h"
#include "support/ManualScheduler.h"

#include <QtQml/qqml.h>

#include <memory>

/// The timers and a store of sparks with manual time.
class TimersFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(TimersViewModel *timers READ timers CONSTANT)
    Q_PROPERTY(PomodoroViewModel *panel READ panel CONSTANT)

public:
    TimersViewModel *timers() { return &m_timers; }
    PomodoroViewModel *panel() { return &m_timers.panel(); }

    Q_INVOKABLE void advance(int milliseconds)
    {
        m_scheduler.advance(std::chrono::milliseconds(milliseconds));
    }
    Q_INVOKABLE void stopFlow() { m_flow.stop(); }
    /// Clicks the timer's label and returns the window of the panel.
    Q_INVOKABLE QObject *toggleWindow()
    {
        if (!m_window)
            m_window = std::make_unique<PomodoroPanel>(*qmlEngine(this), m_timers, m_scheduler);
        m_timers.togglePanel(QRect(10, 10, 20, 20));
        return m_window->window();
    }
    Q_INVOKABLE void capture(const QString &text)
    {
        m_clock.time += 1;
        m_appState.captureSpark(text);
    }
    Q_INVOKABLE void addEmptySpark()
    {
        m_clock.time += 1;
        m_appState.createDocument(Space::ideas);
    }
    Q_INVOKABLE int sparkCount() const { return int(m_appState.sparks().size()); }
    Q_INVOKABLE QString newestSpark() const { return m_appState.sparks()[0].blocks[0].content; }
    Q_INVOKABLE QString pasted() const { return m_pasteboard.item.text; }
    Q_INVOKABLE void setInTray(bool inTray) { m_timers.setInTray(inTray); }
    Q_INVOKABLE void completeSessions(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_pomodoro.start();
            advance(1501000);
            m_pomodoro.start();
            advance(301000);
        }
    }

private:
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualPasteboard m_pasteboard;
    AppState m_appState{m_scheduler, m_clock, m_file};
    PomodoroTimer m_pomodoro{m_scheduler};
    FlowTimer m_flow{m_scheduler};
    TimersViewModel m_timers{m_pomodoro, m_flow, m_appState, m_pasteboard, m_scheduler};
    std::unique_ptr<PomodoroPanel> m_window;
};
