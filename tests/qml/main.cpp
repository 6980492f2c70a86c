#include "ChooserBench.h"
#include "EditorBench.h"
#include "ExportBench.h"
#include "InputMethodBench.h"
#include "ShellFixture.h"
#include "TasksBench.h"
#include "TimersBench.h"

#include <QQmlEngine>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest/quicktest.h>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

/// Gives the view tests the module as the program has it. C++ fixtures that tests need are registered in
/// `qmlEngineAvailable`, one line each.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(u"qrc:/qt/qml"_s);
        qmlRegisterType<ChooserBench>("PelkoTest", 1, 0, "ChooserBench");
        qmlRegisterType<EditorBench>("PelkoTest", 1, 0, "EditorBench");
        qmlRegisterType<ExportBench>("PelkoTest", 1, 0, "ExportBench");
        qmlRegisterType<InputMethodBench>("PelkoTest", 1, 0, "InputMethodBench");
        qmlRegisterType<ShellFixture>("PelkoTest", 1, 0, "ShellFixture");
        qmlRegisterType<ShellWithMenuBar>("PelkoTest", 1, 0, "ShellWithMenuBar");
        qmlRegisterType<TasksBench>("PelkoTest", 1, 0, "TasksBench");
        qmlRegisterType<TimersBench>("PelkoTest", 1, 0, "TimersBench");
    }
};

QUICK_TEST_MAIN_WITH_SETUP(Pelko, Setup)
#include "main.moc"
