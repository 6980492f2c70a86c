#pragma once

#include "Platform/LocalDocumentFile.h"
#include "Platform/QtScheduler.h"
#include "Platform/SystemClock.h"
#include "Platform/SystemDataLocation.h"
#include "Platform/SystemPasteboard.h"
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
    // What is used by others stands first, so that it goes last.
    QtScheduler m_scheduler;
    SystemClock m_clock;
    SystemDataLocation m_dataLocation;
    SystemPasteboard m_pasteboard;
    LocalDocumentFile m_documentFile{m_dataLocation};
    AppState m_appState{m_scheduler, m_clock, m_documentFile};
    MainViewModel m_main{m_appState, m_scheduler, m_pasteboard};
    LaunchSequence m_launch{m_scheduler};
    TimersViewModel m_timers{FlowTimer::shared()};
    QQmlApplicationEngine m_engine;
};
