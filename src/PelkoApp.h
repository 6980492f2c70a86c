#pragma once

#include "Platform/ApplicationOnBus.h"
#include "Platform/Calendar/DesktopCalendarStore.h"
#include "Platform/InstanceServer.h"
#include "Platform/LocalDocumentFile.h"
#include "Platform/LocalExportFolder.h"
#include "Platform/LocalPictureFiles.h"
#include "Platform/LocalPictureFolders.h"
#include "Platform/LockedDocumentFile.h"
#include "Platform/OrderlyShutdown.h"
#include "Platform/PasteGuard.h"
#include "Platform/PortalFileChooser.h"
#include "Platform/QtScheduler.h"
#include "Platform/SingleInstance.h"
#include "Platform/SystemClock.h"
#include "Platform/SystemDataLocation.h"
#include "Platform/SystemPasteboard.h"
#include "Platform/TextWindow.h"
#include "Platform/Tray/Tray.h"
#include "Platform/UserPreferences.h"
#include "Shell/ExportViewModel.h"
#include "Shell/FolderChooser.h"
#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"
#include "Shell/RemoteControl.h"
#include "Shell/SaveRetry.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "Views/Timers/PomodoroPanel.h"

#include <QFileSystemWatcher>
#include <QQmlApplicationEngine>

#include <memory>

class QQuickWindow;

/// The composition root: creates the objects of the program and passes them to each other's constructors. Its
/// constructor loads the documents and shows the window.
class PelkoApp
{
public:
    /// `instance` has locked the data folder and must outlive this object.
    explicit PelkoApp(SingleInstance &instance);
    ~PelkoApp();

    /// Runs the event loop. Returns the exit code, 1 if the window's contents could not be loaded.
    int run();

private:
    static MenuLocation menuLocation();
    static QString activeWindowName();
    std::filesystem::path dataFolder() const;
    QQuickWindow *window() const;
    void bringToFront();
    OrderlyShutdown::Callbacks shutdownCallbacks();
    QString save();
    void followDataFolder(const SingleInstance &instance);
    void watchDataFolder();
    void followRequests();
    void followWindow();
    void followTimer();
    void followTray();
    void followLoading();
    void keepRunningWithoutWindow();
    void tellFailure(const QString &errors);
    void runTrayCommand(TrayMenuRow::Command command);

    // Members are destroyed in reverse order, so dependencies are declared first.
    QtScheduler m_scheduler;
    SystemClock m_clock;
    SystemDataLocation m_dataLocation;
    PasteGuard m_pasteGuard;
    SystemPasteboard m_pasteboard;
    UserPreferences m_preferences;
    DesktopCalendarStore m_calendars{QDBusConnection::sessionBus(), UserFolders::ofThisUser()};
    LocalDocumentFile m_localFile{m_dataLocation};
    LockedDocumentFile m_documentFile;
    LocalPictureFiles m_pictureFiles;
    LocalExportFolder m_exportFolder;
    LocalPictureFolders m_pictureFolders;
    FolderChooser m_folderChooser{m_pictureFolders};
    PortalFileChooser m_fileChooser{QDBusConnection::sessionBus(), activeWindowName, m_folderChooser};
    AppState m_appState{m_scheduler, m_clock, m_documentFile};
    SaveRetry m_saveRetry{m_appState, m_documentFile, m_scheduler};
    MainViewModel m_main{
        m_appState, m_clock, {m_scheduler, m_pasteboard, m_fileChooser, m_pictureFiles}, menuLocation()};
    ExportViewModel m_exports{m_appState, {m_scheduler, m_fileChooser, m_exportFolder, m_pasteboard}};
    LaunchSequence m_launch{m_scheduler};
    PomodoroTimer m_pomodoroTimer{m_scheduler};
    FlowTimer m_flowTimer{m_scheduler};
    TimersViewModel m_timers{m_pomodoroTimer, m_flowTimer, m_appState, m_pasteboard, m_scheduler};
    TasksViewModel m_tasks{m_appState, {m_scheduler, m_clock, m_preferences, m_calendars}};
    QQmlApplicationEngine m_engine;
    QString m_loadErrors;
    std::unique_ptr<TextWindow> m_failure;
    PomodoroPanel m_panel{m_engine, m_timers, m_scheduler};
    Tray m_tray;
    ApplicationOnBus m_onBus;
    ScheduledCall m_return;
    RemoteControl m_remote{m_appState, m_pomodoroTimer};
    InstanceServer m_server{dataFolder(),
                            [this](const QStringList &arguments) { return m_remote.answer(arguments); }};
    QFileSystemWatcher m_folderWatcher;
    OrderlyShutdown m_end{shutdownCallbacks()};
};
