#include "PelkoApp.h"

#include "Views/TakeDown.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

PelkoApp::PelkoApp()
{
    QObject::connect(&m_main, &MainViewModel::quitRequested, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&m_remote, &RemoteControl::openRequested, &m_engine, [this] { bringToFront(); });
    // A system without some QML module: the engine has said on standard error which; there is no window to
    // wait for.
    QObject::connect(
        &m_engine, &QQmlApplicationEngine::objectCreationFailed, QCoreApplication::instance(),
        [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.setInitialProperties({{u"main"_s, QVariant::fromValue(&m_main)},
                                   {u"launch"_s, QVariant::fromValue(&m_launch)},
                                   {u"timers"_s, QVariant::fromValue(&m_timers)}});
    m_engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
}

PelkoApp::~PelkoApp()
{
    if (window())
        takeDown(*window());
}

std::filesystem::path PelkoApp::dataFolder() const
{
    return m_dataLocation.applicationSupportDirectory().value_or(std::filesystem::path()) / "Pelko";
}

QQuickWindow *PelkoApp::window() const
{
    return qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
}

void PelkoApp::bringToFront()
{
    if (!window())
        return;
    window()->setWindowStates(window()->windowStates() & ~Qt::WindowMinimized);
    window()->show();
    window()->raise();
    window()->requestActivate();
}
