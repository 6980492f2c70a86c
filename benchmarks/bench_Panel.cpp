// From the click on the timer's label to the first frame of its panel, with four sparks and with ten
// thousand, against an empty window of the same kind and size.

#include "Platform/QtScheduler.h"
#include "Platform/SystemClock.h"
#include "Platform/SystemPasteboard.h"
#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "Views/Timers/PanelWindow.h"
#include "Views/Timers/PomodoroPanel.h"
#include "support/NoFile.h"
#include "support/RatioTable.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTimer>
#include <QtQml/QQmlExtensionPlugin>

#include <chrono>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
constexpr int patience = 10'000; // ms
constexpr int rest = 700;        // ms; nobody opens a panel in the moment in which it closes

/// The timers over a store of that many sparks.
struct Desk {
    explicit Desk(int sparks)
    {
        for (int i = 0; i < sparks; ++i)
            appState.captureSpark(u"Thought number %1"_s.arg(i));
    }

    QtScheduler scheduler;
    SystemClock clock;
    NoFile file;
    SystemPasteboard pasteboard;
    AppState appState{scheduler, clock, file};
    PomodoroTimer pomodoro{scheduler};
    FlowTimer flow{scheduler};
    TimersViewModel timers{pomodoro, flow, appState, pasteboard, scheduler};
};

QQmlEngine &engine()
{
    static QQmlEngine engine;
    static const bool prepared = [] {
        engine.addImportPath(u"qrc:/qt/qml"_s);
        return true;
    }();
    Q_UNUSED(prepared)
    return engine;
}

bool waitForFrame(QQuickWindow *window)
{
    QEventLoop loop;
    bool isSeen = false;
    QObject::connect(window, &QQuickWindow::frameSwapped, &loop, [&] {
        isSeen = true;
        loop.quit();
    });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    return isSeen;
}

template <typename Open, typename Close>
void measure(benchmark::State &state, Open open, Close close)
{
    for (auto _ : state) {
        const auto before = std::chrono::steady_clock::now();
        QQuickWindow *window = open();
        if (!window || !waitForFrame(window)) {
            state.SkipWithError("no frame was shown");
            return;
        }
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count());
        close(window);
        QEventLoop untilRested;
        QTimer::singleShot(rest, &untilRested, &QEventLoop::quit);
        untilRested.exec();
    }
}

void openPanel(benchmark::State &state, int sparks)
{
    Desk desk(sparks);
    PomodoroPanel panel(engine(), desk.timers, desk.scheduler);
    panel.prepare();
    measure(
        state,
        [&] {
            desk.timers.togglePanel(QRect(700, 10, 60, 26));
            return panel.window();
        },
        [&](QQuickWindow *) { desk.timers.closePanel(); });
}

void openEmptyWindow(benchmark::State &state)
{
    QQmlComponent component(&engine());
    component.setData(
        "import QtQuick\nWindow { flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint\n"
        "x: 580; y: 40; width: 300; height: 560 }",
        {});
    measure(
        state,
        [&] {
            auto *window = qobject_cast<QQuickWindow *>(component.create());
            window->show();
            window->raise();
            window->requestActivate();
            return window;
        },
        [](QQuickWindow *window) {
            window->hide();
            window->deleteLater();
        });
}

template <typename Function, typename... Arguments>
void add(const char *name, Function function, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name, function, arguments...)
        ->Iterations(5)
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}
} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // The program has a window that is up already, and what a first window costs is not the panel's.
    QQmlComponent component(&engine());
    component.setData("import QtQuick\nWindow { width: 1100; height: 750; visible: true }", {});
    const std::unique_ptr<QObject> mainWindow(component.create());
    waitForFrame(qobject_cast<QQuickWindow *>(mainWindow.get()));
    add("panel/floor", openEmptyWindow);
    add("panel/4 sparks", openPanel, 4);
    add("panel/10000 sparks", openPanel, 10'000);
    return runAndPrintRatios(argc, argv);
}
