#include "PelkoApp.h"
#include "Platform/SceneGraphChoice.h"
#include "Platform/SystemDataLocation.h"
#include "Shell/CommandLine.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace
{
QStringList commandLine(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

int say(const CommandLineAnswer &answer)
{
    std::fputs(answer.text.toLocal8Bit().constData(), answer.exitCode == 0 ? stdout : stderr);
    return answer.exitCode;
}

void describe(QGuiApplication &application)
{
    application.setApplicationName(u"Pelko"_s);
    application.setApplicationVersion(QLatin1StringView(PELKO_VERSION));
    application.setDesktopFileName(u"app.pelko.Pelko"_s);
    application.setWindowIcon(QIcon(u":/app.pelko.Pelko.svg"_s));
}
} // namespace

int main(int argc, char *argv[])
{
    if (const auto answer = answerCommandLine(commandLine(argc, argv)))
        return say(*answer);
    if (!SystemDataLocation().applicationSupportDirectory())
        return say({u"Pelko: Could not locate Application Support directory.\n"_s, 1});
    if (prefersSoftwareSceneGraph(QProcessEnvironment::systemEnvironment(), QDir(u"/dev/dri"_s)))
        QQuickWindow::setSceneGraphBackend(u"software"_s);

    // A file that may not grow any further is a failed save, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    // What is written is for the writer only: it is left in no core file.
    constexpr rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    QGuiApplication application(argc, argv);
    describe(application);
    PelkoApp app;
    return QGuiApplication::exec();
}
