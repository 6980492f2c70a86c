// A spark handed to the running program from the command line, against dbus-send with the same bytes to a
// bus.

#include "support/RatioTable.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{
const QString text = u"A thought of ordinary length that came while doing something else."_s;

struct Desk {
    Desk()
    {
        bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        bus.waitForReadyRead();
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, QString::fromUtf8(bus.readLine()).trimmed());
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        pelko.setProcessEnvironment(environment);
        pelko.start(program(), {});
        // Up as soon as it answers.
        for (int i = 0; i < 200 && run(program(), {u"--pomodoro"_s, u"status"_s}) != 0; ++i) {
        }
    }
    ~Desk()
    {
        pelko.kill();
        pelko.waitForFinished();
        bus.kill();
        bus.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Desk)

    static QString program() { return QCoreApplication::applicationDirPath() + u"/../pelko"_s; }

    int run(const QString &command, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(command, arguments);
        process.waitForFinished();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QTemporaryDir home;
    QProcess bus;
    QProcess pelko;
    QProcessEnvironment environment;
};

void call(benchmark::State &state, const Desk &desk, const QString &command, const QStringList &arguments)
{
    for (auto _ : state) {
        const auto before = std::chrono::steady_clock::now();
        const int code = desk.run(command, arguments);
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count());
        if (code != 0) {
            state.SkipWithError("the call failed");
            return;
        }
    }
}

void add(const char *name, const Desk &desk, const QString &command, const QStringList &arguments)
{
    benchmark::RegisterBenchmark(
        name, [&desk, command, arguments](benchmark::State &state) { call(state, desk, command, arguments); })
        ->Iterations(20)
        ->Repetitions(7)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Desk desk;
    add("spark/floor", desk, u"dbus-send"_s,
        {u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
         u"org.freedesktop.DBus.UpdateActivationEnvironment"_s, u"dict:string:string:THOUGHT,"_s + text});
    add("spark/Pelko", desk, Desk::program(), {u"--spark"_s, text});
    return runAndPrintRatios(argc, argv);
}
