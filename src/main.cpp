#include "Launcher/RunningInstance.h"
#include "PelkoApp.h"
#include "Platform/LibraryExport.h"
#include "Platform/SceneGraphChoice.h"
#include "Platform/SystemDataLocation.h"
#include "Platform/Translations.h"
#include "Shell/RemoteControl.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#ifdef __GLIBC__
#    include <malloc.h>
#endif

using namespace Qt::StringLiterals;

namespace
{
/// Returns the memory of freed pictures to the system instead of keeping it in the heap.
void tuneMallocForLargeImages()
{
#ifdef __GLIBC__
    constexpr int megabyte = 1 << 20;
    ::mallopt(M_MMAP_THRESHOLD, megabyte);
    ::mallopt(M_TRIM_THRESHOLD, 8 * megabyte); // a long page is copied with every key
#endif
}

int say(const CommandLineResult &answer)
{
    std::fputs(answer.text.toLocal8Bit().constData(), answer.exitCode == 0 ? stdout : stderr);
    return answer.exitCode;
}

/// Adds the spark to the file without a window. A file that cannot be read is not replaced.
CommandLineResult captureIntoFile(const DataLocation &location, SingleInstance &instance,
                                  const SparkCommand &command)
{
    QtScheduler scheduler;
    const SystemClock clock;
    LocalDocumentFile localFile(location);
    LockedDocumentFile file(localFile, instance);
    AppState appState(scheduler, clock, file);
    if (const std::optional<QString> error = appState.lastError())
        return {u"pelko: %1\n"_s.arg(*error), 1};
    return captureSpark(appState, command);
}

void describe(QGuiApplication &application)
{
    application.setApplicationName(u"Pelko"_s);
    application.setApplicationVersion(QLatin1StringView(PELKO_VERSION));
    application.setDesktopFileName(u"app.pelko.Pelko"_s);
    application.setWindowIcon(QIcon(u":/app.pelko.Pelko.svg"_s));
}

struct MainTexts {
    Q_DECLARE_TR_FUNCTIONS(main)
};

int sayThereIsNoFolder()
{
    return say({MainTexts::tr("Pelko: Could not locate Application Support directory.") + u'\n', 1});
}

/// If another process has locked the data folder, prints its reply and returns the exit code. Otherwise this
/// process has locked it.
std::optional<int> forwardToRunning(SingleInstance &instance)
{
    if (const auto answer = instance.lockOrForward(QCoreApplication::arguments()))
        return say(*answer);
    if (const auto warning = instance.warning())
        std::fputs(warning->toLocal8Bit().constData(), stderr);
    return std::nullopt;
}

int showWindow(int &argc, char *argv[])
{
    if (prefersSoftwareSceneGraph(QProcessEnvironment::systemEnvironment(), QDir(u"/dev/dri"_s)))
        QQuickWindow::setSceneGraphBackend(u"software"_s);
    QGuiApplication application(argc, argv);
    describe(application);
    const Translations translations;
    const auto support = SystemDataLocation().applicationSupportDirectory();
    if (!support)
        return sayThereIsNoFolder();
    SingleInstance instance(*support / "Pelko");
    if (const std::optional<int> exitCode = forwardToRunning(instance))
        return *exitCode;
    return PelkoApp(instance).run();
}

/// Runs a command that needs no window.
int runInTerminal(int &argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const Translations translations;
    if (qEnvironmentVariableIsSet(unansweredVariable))
        return say(SingleInstance::unanswered());
    const ParsedCommandLine commandLine = parseCommandLine(QCoreApplication::arguments());
    if (const auto *known = std::get_if<CommandLineResult>(&commandLine))
        return say(*known);
    const SystemDataLocation location;
    const auto support = location.applicationSupportDirectory();
    if (!support)
        return sayThereIsNoFolder();
    if (const auto *exportTo = std::get_if<ExportCommand>(&commandLine))
        return say(exportLibrary(location, *exportTo));
    SingleInstance instance(*support / "Pelko");
    if (const std::optional<int> exitCode = forwardToRunning(instance))
        return *exitCode;
    if (const auto *spark = std::get_if<SparkCommand>(&commandLine))
        return say(captureIntoFile(location, instance, *spark));
    return say({u"pelko: %1\n"_s.arg(MainTexts::tr("Pelko is not running.")), 1});
}

/// Called before the application exists: a second application in one process would have no accessibility,
/// because Qt removes its provider with the first one.
bool wantsWindow(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return std::holds_alternative<OpenCommand>(parseCommandLine(arguments)) &&
           !qEnvironmentVariableIsSet(unansweredVariable);
}
} // namespace

int main(int argc, char *argv[])
{
    // Exceeding the file size limit must fail the save, not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
    // Core dumps would contain the user's text.
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    tuneMallocForLargeImages();
    return wantsWindow(argc, argv) ? showWindow(argc, argv) : runInTerminal(argc, argv);
}
