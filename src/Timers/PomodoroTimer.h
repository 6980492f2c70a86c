#pragma once

#include "Services/Scheduler.h"

#include <QObject>

#include <optional>
#include <vector>

/// A count-down that alternates between 25 minutes of focus and 5 minutes of break. It stops at the end of
/// each phase; the next one is started by hand. "00:00" is shown for one second, so a phase takes one second
/// longer than its length. Nothing is stored between launches.
class PomodoroTimer : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 focusSeconds = 1500;
    static constexpr qint64 breakSeconds = 300;

    explicit PomodoroTimer(Scheduler &scheduler, QObject *parent = nullptr);

    /// Seconds left in the current phase, never less than 0.
    qint64 timeRemaining() const { return m_timeRemaining; }
    bool isRunning() const { return m_isRunning; }
    bool isFocusPhase() const { return m_isFocusPhase; }
    /// Focus phases completed since launch.
    qint64 sessionCount() const { return m_sessionCount; }
    /// The duration of the current phase in seconds.
    qint64 phaseLength() const { return m_isFocusPhase ? focusSeconds : breakSeconds; }
    /// "mm:ss".
    QString displayTime() const;

    /// Starts the count-down. Must not be called while it runs: that starts a second tick, which only the
    /// destructor stops.
    void start();
    /// Stops and keeps the remaining time.
    void pause();
    /// Pauses and refills the current phase.
    void reset();

Q_SIGNALS:
    void timeRemainingChanged();
    void isRunningChanged();
    void isFocusPhaseChanged();
    void sessionCountChanged();

private:
    void tick();
    void completePhase();

    Scheduler &m_scheduler;
    qint64 m_timeRemaining = focusSeconds;
    bool m_isRunning = false;
    bool m_isFocusPhase = true;
    qint64 m_sessionCount = 0;
    std::optional<ScheduledCall> m_timer;
    std::vector<ScheduledCall> m_lostTimers; // timers of calls to start() while running
};
