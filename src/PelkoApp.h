#pragma once

#include "Platform/LocalDocumentFile.h"
#include "Platform/LocalPictureFiles.h"
#include "Platform/LocalPictureFolders.h"
#include "Platform/PortalImageChooser.h"
#include "Platform/QtScheduler.h"
#include "Platform/SystemClock.h"
#include "Platform/SystemDataLocation.h"
#include "Platform/SystemPasteboard.h"
#include "Shell/FolderChooser.h"
#include "Shell/LaunchSequence.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "Timers/TimersViewModel.h"

#include <QQmlApplicationEngine>

/// The composition root: the one place that knows every part and hands each what it needs. Making it loads
/// the documents and shows the window.
class PelkoApp
{
public:
    PelkoApp();
    ~PelkoApp();

private:
    static QString activeWindowName();

    // What is used by others stands first, so that it goes last.
    QtScheduler m_scheduler;
    SystemClock m_clock;
    SystemDataLocation m_dataLocation;
    SystemPasteboard m_pasteboard;
    LocalDocumentFile m_documentFile{m_dataLocation};
    LocalPictureFiles m_pictureFiles;
    LocalPictureFolders m_pictureFolders;
    FolderChooser m_folderChooser{m_pictureFolders};
    PortalImageChooser m_imageChooser{QDBusConnection::sessionBus(), activeWindowName, m_folderChooser};
    AppState m_appState{m_scheduler, m_clock, m_documentFile};
    MainViewModel m_main{m_appState, {m_scheduler, m_pasteboard, m_imageChooser, m_pictureFiles}};
    LaunchSequence m_launch{m_scheduler};
    TimersViewModel m_timers{FlowTimer::shared()};
    QQmlApplicationEngine m_engine;
};
