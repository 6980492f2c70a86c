#include "PelkoApp.h"

#include "Platform/WindowStates.h"
#include "Shell/StartFailure.h"
#include "Timers/PomodoroText.h"
#include "Views/Controls/Composition.h"
#include "Views/SceneTeardown.h"

#include <QFile>
#include <QGuiApplication>
#include <QOperatingSystemVersion>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto trayRestartTime = 5s;

/// Commits preedit text, which is shown on the page but not in the document yet.
void settleComposition()
{
    Composition::settle(qobject_cast<QQuickItem *>(QGuiApplication::focusObject()));
}
} // namespace

PelkoApp::PelkoApp(SingleInstance &instance) : m_documentFile(m_localFile, instance)
{
    m_exports.bindTo(*m_main.commands()->list());
    followDataFolder(instance);
    followRequests();
    followTimer();
    followTray();
    keepRunningWithoutWindow();
    followLoading();
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.setInitialProperties({{u"main"_s, QVariant::fromValue(&m_main)},
                                   {u"launch"_s, QVariant::fromValue(&m_launch)},
                                   {u"timers"_s, QVariant::fromValue(&m_timers)},
                                   {u"tasks"_s, QVariant::fromValue(&m_tasks)},
                                   {u"exports"_s, QVariant::fromValue(&m_exports)},
                                   {u"folderChooser"_s, QVariant::fromValue(&m_folderChooser)}});
    m_engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
    followWindow();
}

MenuLocation PelkoApp::menuLocation()
{
    const bool isOnMac = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;
    return isOnMac ? MenuLocation::menuBar : MenuLocation::window;
}

/// Returns the window's identifier for the desktop's file chooser.
QString PelkoApp::activeWindowName()
{
    const QWindow *window = QGuiApplication::focusWindow();
    const bool isOnX11 = QGuiApplication::platformName() == u"xcb"_s;
    return window && isOnX11 ? u"x11:%1"_s.arg(window->winId(), 0, 16) : QString();
}

PelkoApp::~PelkoApp()
{
    if (!window())
        return;
    window()->hide(); // while all receivers of its signals exist
    tearDownScene(*window());
}

std::filesystem::path PelkoApp::dataFolder() const
{
    return m_dataLocation.applicationSupportDirectory().value_or(std::filesystem::path()) / "Pelko";
}

/// The folder may be removed or moved while the program runs. It is made again at once, so that the next
/// command line finds this process and not an empty folder.
void PelkoApp::followDataFolder(const SingleInstance &instance)
{
    m_documentFile.onFolderChanged([this] {
        m_server.listen();
        m_appState.adoptFile();
        watchDataFolder();
    });
    QObject::connect(&m_folderWatcher, &QFileSystemWatcher::directoryChanged, &m_appState, [this, &instance] {
        if (!instance.holdsFolder() && !m_documentFile.followFolder())
            m_appState.saveChanges();
    });
    watchDataFolder();
}

void PelkoApp::watchDataFolder()
{
    // Moving a folder only notifies watchers of its parent.
    const QStringList folders{QFile::decodeName(dataFolder().c_str()),
                              QFile::decodeName(dataFolder().parent_path().c_str())};
    m_folderWatcher.removePaths(folders); // some may not exist any more
    m_folderWatcher.addPaths(folders);
}

QQuickWindow *PelkoApp::window() const
{
    return qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
}

int PelkoApp::run()
{
    const int code = QGuiApplication::exec();
    return m_failure ? 1 : code;
}

void PelkoApp::followLoading()
{
    QObject::connect(&m_engine, &QQmlEngine::warnings, &m_engine, [this](const QList<QQmlError> &errors) {
        for (const QQmlError &error : errors)
            m_loadErrors += error.toString() + u'\n';
    });
    QObject::connect(
        &m_engine, &QQmlApplicationEngine::objectCreationFailed, &m_engine,
        [this] { tellFailure(m_loadErrors); }, Qt::QueuedConnection);
    QObject::connect(
        &m_launch, &LaunchSequence::failed, &m_engine, [this](const QString &errors) { tellFailure(errors); },
        Qt::QueuedConnection);
}

/// Shows the errors if a QML module is missing, instead of an empty window.
void PelkoApp::tellFailure(const QString &errors)
{
    const QString text = startFailure(errors);
    std::fputs(qPrintable(text + u'\n'), stderr);
    m_failure = std::make_unique<TextWindow>(u"Pelko"_s, text);
    m_failure->show();
    QObject::connect(m_failure.get(), &QWindow::visibleChanged, m_failure.get(), &QCoreApplication::quit);
    if (window())
        window()->hide();
}

void PelkoApp::bringToFront()
{
    if (m_failure)
        ::bringToFront(*m_failure);
    else if (window())
        ::bringToFront(*window());
}

OrderlyShutdown::Callbacks PelkoApp::shutdownCallbacks()
{
    // Without a window there is nowhere to ask.
    return {.mayEnd =
                [this] {
                    settleComposition();
                    return m_main.quitGuard()->mayQuit() || !window();
                },
            .save =
                [this] {
                    settleComposition();
                    return save();
                },
            .saveWithoutDisplay =
                [this] {
                    const QSignalBlocker blocker(m_appState);
                    save();
                },
            .endsWithWindow = [this] { return !m_tray.isPresent(); }};
}

/// Returns the error for the user, or an empty text.
QString PelkoApp::save()
{
    m_appState.saveChanges();
    m_appState.confirmSave();
    return m_appState.lastSaveError().value_or(QString());
}

void PelkoApp::followRequests()
{
    QObject::connect(m_main.quitGuard(), &QuitGuard::quitRequested, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&m_end, &OrderlyShutdown::refused, &m_engine, [this] { bringToFront(); });
    QObject::connect(m_main.commands(), &ShellCommands::quitRequested, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(m_main.commands(), &ShellCommands::fullScreenToggled, &m_engine,
                     [this] { toggleFullScreen(*window()); });
    QObject::connect(&m_remote, &RemoteControl::openRequested, &m_engine, [this] { bringToFront(); });
    QObject::connect(&m_onBus, &ApplicationOnBus::openRequested, &m_engine, [this] { bringToFront(); });
    // D-Bus and the panel are set up after the first frame; the launch card hides the delay.
    QObject::connect(&m_launch, &LaunchSequence::showFlameChanged, &m_tray, [this] {
        m_tray.connectTo(QDBusConnection::sessionBus());
        m_onBus.connectTo(QDBusConnection::sessionBus());
        m_panel.prepareSoon();
    });
}

void PelkoApp::followWindow()
{
    if (!window())
        return;
    m_end.guard(*window());
    QObject::connect(window(), &QWindow::visibilityChanged, m_main.commands(),
                     [this] { m_main.commands()->setFullScreen(fillsScreen(*window())); });
    QObject::connect(window(), &QWindow::visibleChanged, &m_main, [this](bool isOpen) {
        if (!isOpen)
            m_main.greet();
    });
}

void PelkoApp::followTimer()
{
    const auto show = [this] { m_tray.show(trayIconState(m_pomodoroTimer, m_main.saveError())); };
    QObject::connect(&m_pomodoroTimer, &PomodoroTimer::timeRemainingChanged, &m_tray, show);
    QObject::connect(&m_pomodoroTimer, &PomodoroTimer::isRunningChanged, &m_tray, show);
    QObject::connect(&m_pomodoroTimer, &PomodoroTimer::sessionCountChanged, &m_tray, show);
    QObject::connect(&m_main, &MainViewModel::saveErrorChanged, &m_tray, show);
    show();
}

void PelkoApp::followTray()
{
    QObject::connect(&m_tray, &Tray::activated, &m_timers,
                     [this](const QPoint &place) { m_timers.togglePanel(QRect(place, QSize(1, 1))); });
    QObject::connect(&m_tray, &Tray::secondaryActivated, &m_timers,
                     [this] { startOrPause(m_pomodoroTimer); });
    QObject::connect(&m_tray, &Tray::chosen, &m_timers,
                     [this](TrayMenuRow::Command command) { runTrayCommand(command); });
    QObject::connect(&m_tray, &Tray::isPresentChanged, &m_timers,
                     [this] { m_timers.setInTray(m_tray.isPresent()); });
}

void PelkoApp::keepRunningWithoutWindow()
{
    // With a tray the program stays there when its window is closed.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, &m_tray, [this] {
        if (!m_tray.isPresent())
            QCoreApplication::quit();
    });
    // A crashed tray restarts. If it does not, show the window, which could not be reached otherwise.
    QObject::connect(&m_tray, &Tray::isPresentChanged, &m_engine, [this] {
        m_return = m_scheduler.after(trayRestartTime, [this] {
            if (!m_tray.isPresent() && window() && !window()->isVisible())
                window()->setVisible(true);
        });
    });
}

void PelkoApp::runTrayCommand(TrayMenuRow::Command command)
{
    switch (command) {
    case TrayMenuRow::Command::open:
        bringToFront();
        break;
    case TrayMenuRow::Command::startOrPause:
        startOrPause(m_pomodoroTimer);
        break;
    case TrayMenuRow::Command::reset:
        m_pomodoroTimer.reset();
        break;
    case TrayMenuRow::Command::quit:
        QCoreApplication::quit();
        break;
    case TrayMenuRow::Command::none:
        break;
    }
}
