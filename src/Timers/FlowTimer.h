#pragma once

#include "Services/Scheduler.h"

#include <QObject>

#include <optional>

/// A timer of five minutes. It counts down, shows "0:00" for one second and stops by itself. `start` begins
/// again after a finished run and resumes a stopped one.
class FlowTimer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString displayTime READ displayTime NOTIFY remainingChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(bool isActive READ isActive NOTIFY isActiveChanged)

public:
    static constexpr qint64 totalSeconds = 300;

    explicit FlowTimer(Scheduler &scheduler, QObject *parent = nullptr);

    /// Seconds left in the current run.
    qint64 remaining() const { return m_remaining; }
    bool isRunning() const { return m_isRunning; }
    /// Returns whether a run has started and is not finished.
    bool isActive() const { return m_isRunning || m_remaining < totalSeconds; }
    /// "m:ss".
    QString displayTime() const;

    /// Starts or resumes the count-down. Does nothing while it runs.
    Q_INVOKABLE void start();
    /// Stops and keeps the remaining time.
    void stop();

Q_SIGNALS:
    void remainingChanged();
    void isRunningChanged();
    void isActiveChanged();

private:
    void tick();
    void become(bool running, qint64 remaining);

    Scheduler &m_scheduler;
    qint64 m_remaining = totalSeconds;
    bool m_isRunning = false;
    std::optional<ScheduledCall> m_timer;
};
