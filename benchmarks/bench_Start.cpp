// From starting the program to its first frame, against a window with nothing in it. Every measurement is a
// process of its own: this program again, told which of the two windows to show.

#include "PelkoApp.h"
#include "support/RatioTable.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <chrono>
#include <cstring>

using namespace Qt::StringLiterals;

namespace
{
int untilFirstFrame()
{
    auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::topLevelWindows().value(0));
    if (!window)
        return EXIT_FAILURE;
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [] { std::_Exit(EXIT_SUCCESS); });
    return QGuiApplication::exec();
}

int showPelko()
{
    PelkoApp app;
    return untilFirstFrame();
}

int showEmptyWindow()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nWindow { width: 1100; height: 750; visible: true }", {});
    const std::unique_ptr<QObject> window(component.create());
    return untilFirstFrame();
}

void start(benchmark::State &state, const QString &window)
{
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, home.path());
    for (auto _ : state) {
        QProcess child;
        child.setProcessEnvironment(environment);
        const auto before = std::chrono::steady_clock::now();
        child.start(QCoreApplication::applicationFilePath(), {u"--show"_s, window});
        const bool finished = child.waitForFinished();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count());
        if (!finished || child.exitCode() != EXIT_SUCCESS) {
            state.SkipWithError("no frame was shown");
            return;
        }
    }
}

void add(const char *name, const QString &window)
{
    benchmark::RegisterBenchmark(name, start, window)
        ->Iterations(3)
        ->Repetitions(7)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    application.setApplicationName(u"Pelko"_s);
    if (argc == 3 && std::strcmp(argv[1], "--show") == 0)
        return std::strcmp(argv[2], "Pelko") == 0 ? showPelko() : showEmptyWindow();
    add("start/floor", u"empty"_s);
    add("start/Pelko", u"Pelko"_s);
    return runAndPrintRatios(argc, argv);
}
