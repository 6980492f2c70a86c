#pragma once

#include "Services/Scheduler.h"

#include <QObject>

class AppState;
class DocumentFile;

/// After a failed save, checks every thirty seconds whether the file can be written, and then saves again.
/// The check is cheap; a save that fails may not be.
class SaveRetry : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive this object.
    SaveRetry(AppState &appState, const DocumentFile &file, Scheduler &scheduler, QObject *parent = nullptr);

private:
    void followLastSave();

    AppState &m_appState;
    const DocumentFile &m_file;
    Scheduler &m_scheduler;
    ScheduledCall m_looks;
};
