#pragma once

#include "Platform/SystemPasteboard.h"
#include "Shell/ExportViewModel.h"
#include "Shell/FolderChooser.h"
#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"
#include "Shell/SaveRetry.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualExportFolder.h"
#include "support/ManualPictureFolders.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

/// The system for a program under test: manual time, a disk in memory, and the platform's clipboard. It
/// outlives the programs that run on it.
struct ManualSystem {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualPreferences preferences;
    ManualCalendarStore calendars;
    ManualFileChooser fileChooser;
    ManualPictureFiles pictureFiles;
    ManualPictureFolders pictureFolders;
    ManualExportFolder exportFolder;
    SystemPasteboard pasteboard;
};

/// The program with its real window, store and view models. The constructor loads the documents and waits for
/// the end of the launch card.
class RunningProgram
{
public:
    explicit RunningProgram(ManualSystem &system);
    ~RunningProgram();
    Q_DISABLE_COPY_MOVE(RunningProgram)

    AppState &store() { return m_appState; }
    MainViewModel &main() { return m_main; }
    /// The tasks panel, visible or not.
    TasksPanelViewModel &tasksPanel() { return m_tasksPanel; }
    QQuickWindow &window() { return *m_window; }

    /// Advances time and animations. The scene is laid out and drawn at the end.
    void pass(std::chrono::milliseconds time);

private:
    ManualSystem &m_system;
    FlowTimer m_flow{m_system.scheduler};
    AppState m_appState{m_system.scheduler, m_system.clock, m_system.file};
    SaveRetry m_saveRetry{m_appState, m_system.file, m_system.scheduler};
    FolderChooser m_folderChooser{m_system.pictureFolders};
    MainViewModel m_main{
        m_appState,
        m_system.clock,
        {m_system.scheduler, m_system.pasteboard, m_system.fileChooser, m_system.pictureFiles}};
    ExportViewModel m_exports{
        m_appState, {m_system.scheduler, m_system.fileChooser, m_system.exportFolder, m_system.pasteboard}};
    LaunchSequence m_launch{m_system.scheduler};
    PomodoroTimer m_pomodoro{m_system.scheduler};
    TimersViewModel m_timers{m_pomodoro, m_flow, m_appState, m_system.pasteboard, m_system.scheduler};
    TasksServices m_tasksServices{m_system.scheduler, m_system.clock, m_system.preferences,
                                  m_system.calendars};
    TasksViewModel m_tasks{m_appState, m_tasksServices};
    TasksPanelViewModel m_tasksPanel{m_appState, m_tasksServices};
    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr;
};
