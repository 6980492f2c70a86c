#include "PelkoApp.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
// The layers of the window stand in its content.
constexpr int layerDepth = 2;

/// Deletes what stands in `item`, uppermost first, because glass looks at what lies below.
void takeDown(QQuickItem &item, int depth)
{
    QList<QQuickItem *> children = item.childItems();
    while (!children.isEmpty()) {
        QQuickItem *child = children.takeLast();
        if (depth > 1)
            takeDown(*child, depth - 1);
        delete child;
    }
}
} // namespace

PelkoApp::PelkoApp()
{
    QObject::connect(&m_main, &MainViewModel::quitRequested, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    // A system without some QML module: the engine has said on standard error which; there is no window to
    // wait for.
    QObject::connect(
        &m_engine, &QQmlApplicationEngine::objectCreationFailed, QCoreApplication::instance(),
        [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    m_engine.addImportPath(u"qrc:/qt/qml"_s);
    m_engine.setInitialProperties({{u"main"_s, QVariant::fromValue(&m_main)},
                                   {u"launch"_s, QVariant::fromValue(&m_launch)},
                                   {u"timers"_s, QVariant::fromValue(&m_timers)},
                                   {u"folderChooser"_s, QVariant::fromValue(&m_folderChooser)}});
    m_engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
}

/// The name under which a chooser of the desktop's own knows the window it belongs to.
QString PelkoApp::activeWindowName()
{
    const QWindow *window = QGuiApplication::focusWindow();
    const bool isOnX11 = QGuiApplication::platformName() == u"xcb"_s;
    return window && isOnX11 ? u"x11:%1"_s.arg(window->winId(), 0, 16) : QString();
}

PelkoApp::~PelkoApp()
{
    // Items go while their window lives. Left to the window they would outlive parts of it wherever an effect
    // holds one of them, and the focus they lose is announced through those parts.
    for (QObject *root : m_engine.rootObjects()) {
        if (const auto *window = qobject_cast<QQuickWindow *>(root))
            takeDown(*window->contentItem(), layerDepth);
    }
}
