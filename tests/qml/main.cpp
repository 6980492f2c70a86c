#include "ChooserFixture.h"
#include "EditorFixture.h"
#include "ExportFixture.h"
#include "InputMethodFixture.h"
#include "ItemTree.h"
#include "PseudoLocale.h"
#include "ShellFixture.h"
#include "ShownTexts.h"
#include "TasksFixture.h"
#include "TimersFixture.h"
#include "WholeProgram.h"
#include "support/EnglishCatalogue.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>
#include <QtQuickTest/quicktest.h>

#include <algorithm>
#include <array>
#include <optional>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
QtMessageHandler outputOfTest = nullptr;

/// A warning of the offscreen platform that is expected in tests whose names begin like this.
struct ExpectedWarning {
    const char *test;
    QLatin1StringView message;
};

constexpr std::array expectedWarnings{
    ExpectedWarning{"NativeMenuBar::", "No native Menu implementation available"_L1},
    ExpectedWarning{"PomodoroPanel::", "This plugin does not support raise()"_L1},
    ExpectedWarning{"InputMethods::", "QUnifiedTimer::stopAnimationDriver"_L1},
};

bool isExpected(const QString &message)
{
    const QByteArrayView test(QTest::currentTestFunction());
    return std::ranges::any_of(expectedWarnings, [&](const ExpectedWarning &expected) {
        return test.startsWith(expected.test) && message.contains(expected.message);
    });
}

/// Makes the current test fail when Qt warns.
void failOnWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    outputOfTest(type, context, message);
    if ((type == QtWarningMsg || type == QtCriticalMsg) && !isExpected(message))
        QTest::qFail(qPrintable(u"Qt complains: "_s + message), context.file ? context.file : "",
                     context.line);
}
} // namespace

/// Provides the program's QML module to the tests. C++ fixtures are registered in `qmlEngineAvailable`.
class Setup : public QObject
{
    Q_OBJECT

public:
    /// Qt Test installs its message handler only with the first test.
    bool eventFilter(QObject *, QEvent *) override
    {
        const QtMessageHandler before = qInstallMessageHandler(failOnWarning);
        if (before != failOnWarning)
            outputOfTest = before;
        return false;
    }

public Q_SLOTS:
    void applicationAvailable()
    {
        m_english.emplace();
        QCoreApplication::instance()->installEventFilter(this);
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(u"qrc:/qt/qml"_s);
        qmlRegisterType<ChooserFixture>("PelkoTest", 1, 0, "ChooserFixture");
        qmlRegisterType<EditorFixture>("PelkoTest", 1, 0, "EditorFixture");
        qmlRegisterType<ExportFixture>("PelkoTest", 1, 0, "ExportFixture");
        qmlRegisterType<InputMethodFixture>("PelkoTest", 1, 0, "InputMethodFixture");
        qmlRegisterSingletonType<ItemTree>("PelkoTest", 1, 0, "ItemTree",
                                           [](QQmlEngine *, QJSEngine *) { return new ItemTree; });
        qmlRegisterType<PseudoLocale>("PelkoTest", 1, 0, "PseudoLocale");
        qmlRegisterType<ShellFixture>("PelkoTest", 1, 0, "ShellFixture");
        qmlRegisterType<ShellWithMenuBar>("PelkoTest", 1, 0, "ShellWithMenuBar");
        qmlRegisterType<ShownTexts>("PelkoTest", 1, 0, "ShownTexts");
        qmlRegisterType<TasksFixture>("PelkoTest", 1, 0, "TasksFixture");
        qmlRegisterType<TimersFixture>("PelkoTest", 1, 0, "TimersFixture");
        qmlRegisterType<WholeProgram>("PelkoTest", 1, 0, "WholeProgram");
    }

private:
    std::optional<EnglishCatalogue> m_english;
};

QUICK_TEST_MAIN_WITH_SETUP(Pelko, Setup)
#include "main.moc"
