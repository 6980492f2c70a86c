#pragma once

#include "Services/Scheduler.h"

#include <QObject>

class AppState;
class DocumentFile;

/// After a failed save, looks every thirty seconds whether the file can be written, and then saves again. A
/// look costs next to nothing, a save that is bound to fail may not.
class SaveRetry : public QObject
{
    Q_OBJECT

public:
    /// All three must outlive this object.
    SaveRetry(AppState &appState, const DocumentFile &file, Scheduler &scheduler, QObject *parent = nullptr);

private:
    void followLastSave();

    AppState &m_appState;
    const DocumentFile &m_file;
    Scheduler &m_scheduler;
    ScheduledCall m_looks;
};
