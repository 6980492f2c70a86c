#pragma once

#include "Services/Scheduler.h"

#include <QObject>

#include <optional>
#include <vector>

/// A count-down that alternates between 25 minutes of focus and 5 minutes of break and stops at each
/// boundary: the next phase is started by hand. It rests on "00:00" for one second before a phase ends, so a
/// phase takes one tick more than it has seconds. Nothing is stored between launches.
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
    std::vector<ScheduledCall> m_lostTimers; // of starts while running
};
