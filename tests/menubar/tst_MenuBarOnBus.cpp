#include "Platform/PrivateBus.h"
#include "Tasks/TasksViewModel.h"
#include "Timers/TimersViewModel.h"
#include "Views/SceneTeardown.h"
#include "menubar/MenuOnBus.h"
#include "menubar/PrivateDisplay.h"
#include "qml/ExportFixture.h"
#include "qml/ShellFixture.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

/// The menu bar of the main window on a desktop with a global menu bar, read and used over the bus.
class TestMenuBarOnBus : public QObject
{
    Q_OBJECT

public:
    TestMenuBarOnBus(QDBusConnection bus, const MenuRegistrar &registrar)
        : m_bus(std::move(bus))
        , m_registrar(registrar)
    {
    }

private:
    /// The window of a program with its menu bar on the bus.
    struct Window {
        ShellWithMenuBar program;
        ExportFixture exports;
        QQmlApplicationEngine engine;

        Window()
        {
            engine.addImportPath(u"qrc:/qt/qml"_s);
            engine.setInitialProperties({{u"main"_s, QVariant::fromValue(program.mainViewModel())},
                                         {u"launch"_s, QVariant::fromValue(program.launch())},
                                         {u"timers"_s, QVariant::fromValue<TimersViewModel *>(nullptr)},
                                         {u"tasks"_s, QVariant::fromValue<TasksViewModel *>(nullptr)},
                                         {u"exports"_s, QVariant::fromValue(exports.exports())},
                                         {u"folderChooser"_s, QVariant::fromValue(exports.chooser())}});
            engine.load(QUrl(u"qrc:/qt/qml/Pelko/Views/Shell/PelkoWindow.qml"_s));
        }
        ~Window() { tearDownScene(*qobject_cast<QQuickWindow *>(engine.rootObjects().value(0))); }
        Q_DISABLE_COPY_MOVE(Window)
    };

    MenuOnBus menuBar() const
    {
        [this] { QTRY_VERIFY(!m_registrar.place().path.isEmpty()); }();
        return {m_bus, m_registrar.place()};
    }

    QDBusConnection m_bus;
    const MenuRegistrar &m_registrar;

private Q_SLOTS:
    void theMenusAreThoseOfTheTable()
    {
        const Window window;
        QStringList shown;
        for (const RowOnBus &menu : menuBar().menus()) {
            shown << menu.label() + u':';
            for (const RowOnBus &row : menu.rows)
                shown << (row.isSeparator() ? u"-"_s : row.label());
        }

        QCOMPARE(shown, (QStringList{u"File:"_s,
                                     u"New Document"_s,
                                     u"Go to…"_s,
                                     u"Save"_s,
                                     u"-"_s,
                                     u"Export…"_s,
                                     u"Export everything…"_s,
                                     u"Copy page as Markdown"_s,
                                     u"Edit:"_s,
                                     u"Undo"_s,
                                     u"Redo"_s,
                                     u"Cut"_s,
                                     u"Copy"_s,
                                     u"Paste"_s,
                                     u"Select All"_s,
                                     u"Spaces:"_s,
                                     u"Ideas"_s,
                                     u"Work"_s,
                                     u"Journal"_s,
                                     u"View:"_s,
                                     u"Tasks"_s,
                                     u"Pomodoro"_s,
                                     u"Focus mode"_s,
                                     u"Full screen"_s,
                                     u"Help:"_s,
                                     u"Keyboard Shortcuts"_s,
                                     u"About Pelko"_s,
                                     u"Quit"_s}));
    }

    void chosenRowRunsItsCommand()
    {
        Window window;
        const MenuOnBus bar = menuBar();
        bar.choose(u"New Document"_s);
        QTRY_COMPARE(window.program.documentCount(), 1);
        const QSignalSpy quitting(window.program.mainViewModel()->commands(), &ShellCommands::quitRequested);
        bar.choose(u"Quit"_s);
        QTRY_COMPARE(quitting.count(), 1);
    }

    void aRowIsEnabledWhenItsCommandIs()
    {
        Window window;
        const MenuOnBus bar = menuBar();
        QVERIFY(!bar.labels(&RowOnBus::isEnabled).contains(u"Focus mode"_s));
        QVERIFY(bar.labels(&RowOnBus::isEnabled).contains(u"Tasks"_s));
        window.program.createDocuments(1);
        QTRY_VERIFY(bar.labels(&RowOnBus::isEnabled).contains(u"Focus mode"_s));
        bar.choose(u"Journal"_s);
        QTRY_VERIFY(!bar.labels(&RowOnBus::isEnabled).contains(u"Tasks"_s));
    }

    void ticksFollowTheCommands()
    {
        Window window;
        const MenuOnBus bar = menuBar();
        QCOMPARE(bar.labels(&RowOnBus::isTickable),
                 (QStringList{u"Ideas"_s, u"Work"_s, u"Journal"_s, u"Tasks"_s, u"Focus mode"_s,
                              u"Full screen"_s}));
        QCOMPARE(bar.labels(&RowOnBus::isTicked), QStringList{u"Work"_s});
        bar.choose(u"Journal"_s);
        QTRY_COMPARE(bar.labels(&RowOnBus::isTicked), QStringList{u"Journal"_s});
        // The menu bar toggles the tick itself; the current space has not changed.
        bar.choose(u"Journal"_s);
        QTRY_COMPARE(bar.labels(&RowOnBus::isTicked), QStringList{u"Journal"_s});
        QVERIFY(window.program.isIn(u"journal"_s));
    }
};

int main(int argc, char *argv[])
{
    const PrivateDisplay display;
    PrivateBus bus;
    // Qt decides between the two when the application is created.
    MenuRegistrar registrar(bus.connection(u"registrar"_s));
    qputenv("DISPLAY", display.name());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QPA_PLATFORMTHEME", "generic");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    registrar.start();
    TestMenuBarOnBus test(bus.connection(u"desktop"_s), registrar);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_MenuBarOnBus.moc"
