#pragma once

#include "Models/Timestamp.h"
#include "Services/Scheduler.h"
#include "Tasks/TasksServices.h"

#include <QObject>

class AppState;

/// What the tasks panel shows and can do, from its opening to its closing. It follows the store and, once a
/// minute counted from its opening, the clock; so the minute it shows may be up to 59 seconds old.
class TasksPanelViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString time READ time NOTIFY currentTimeChanged)
    Q_PROPERTY(QString timeMarker READ timeMarker NOTIFY currentTimeChanged)
    Q_PROPERTY(QString dateString READ dateString NOTIFY currentTimeChanged)

public:
    TasksPanelViewModel(AppState &appState, const TasksServices &services, QObject *parent = nullptr);

    /// Like "7:42", and beside it "AM".
    QString time() const;
    QString timeMarker() const;
    /// Like "Thursday, Oct 16".
    QString dateString() const;

Q_SIGNALS:
    void currentTimeChanged();

private:
    void tick();

    AppState &m_appState;
    const TasksServices m_services;
    Timestamp m_currentTime;
    ScheduledCall m_timeTimer;
};
