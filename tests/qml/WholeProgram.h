#pragma once

#include "Shell/ExportViewModel.h"
#include "Shell/FolderChooser.h"
#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualExportFolder.h"
#include "support/ManualPasteboard.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"

#include <QtQml/qqml.h>

/// Folders with Cyrillic names.
class CyrillicFolders : public PictureFolders
{
public:
    QList<std::filesystem::path> places() const override { return {"/Дом"}; }
    ScheduledCall list(const std::filesystem::path &folder, Completion completion) override;
};

/// Everything that the windows need, for tests of all views. The user's texts are in Cyrillic.
class WholeProgram : public QObject
{
    Q_OBJECT
    Q_PROPERTY(MainViewModel *main READ mainViewModel CONSTANT)
    Q_PROPERTY(LaunchSequence *launch READ launch CONSTANT)
    Q_PROPERTY(TimersViewModel *timers READ timers CONSTANT)
    Q_PROPERTY(TasksViewModel *tasks READ tasks CONSTANT)
    Q_PROPERTY(ExportViewModel *exports READ exports CONSTANT)
    Q_PROPERTY(FolderChooser *chooser READ chooser CONSTANT)
    /// The names for `enter`.
    Q_PROPERTY(QStringList scenes READ scenes CONSTANT)

public:
    WholeProgram();

    MainViewModel *mainViewModel() { return &m_main; }
    LaunchSequence *launch() { return &m_launch; }
    TimersViewModel *timers() { return &m_timers; }
    TasksViewModel *tasks() { return &m_tasks; }
    ExportViewModel *exports() { return &m_exports; }
    FolderChooser *chooser() { return &m_chooser; }

    static QStringList scenes();
    /// Opens the view with this name.
    Q_INVOKABLE void enter(const QString &scene);

private:
    void addPage(const QList<Block> &blocks, Space space = Space::work);
    void addFullPage();
    void beginExport(bool library);
    void failToSave();
    void advance(int milliseconds) { m_scheduler.advance(std::chrono::milliseconds(milliseconds)); }

    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualDesktop m_desktop;
    ManualPreferences m_preferences;
    ManualCalendarStore m_calendars;
    ManualExportFolder m_exportFolder;
    CyrillicFolders m_folders;
    FolderChooser m_chooser{m_folders};
    AppState m_appState{m_scheduler, m_clock, m_file};
    MainViewModel m_main{m_appState, m_clock, m_desktop.services(m_scheduler)};
    ExportViewModel m_exports{m_appState, {m_scheduler, m_chooser, m_exportFolder, m_desktop.pasteboard}};
    LaunchSequence m_launch{m_scheduler};
    PomodoroTimer m_pomodoro{m_scheduler};
    FlowTimer m_flow{m_scheduler};
    TimersViewModel m_timers{m_pomodoro, m_flow, m_appState, m_desktop.pasteboard, m_scheduler};
    TasksViewModel m_tasks{
        m_appState, {m_scheduler, m_clock, m_preferences, m_calendars, QLocale(QStringLiteral("en_US"))}};
    ScheduledCall m_choosing;
};
