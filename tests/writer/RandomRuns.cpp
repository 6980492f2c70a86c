#include "writer/RandomRuns.h"

#include "writer/RecordedRun.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

constexpr int longestStart = 120'000;
constexpr int longestReplay = 120'000;
constexpr int mostReplays = 150;
/// In seconds. Additional time is used for additional seeds.
constexpr int longestShare = 60;

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

/// Returns the frames of this program in the address sanitizer's report, or the end of the output.
QString lastWords(const QByteArray &errors)
{
    QStringList told;
    for (const QByteArray &line : errors.split('\n')) {
        const bool isOurs = line.contains("ERROR") || line.contains("runtime error") ||
                            line.contains("ASSERT") ||
                            (line.contains("    #") && (line.contains("/src/") || told.size() < 6));
        if (isOurs && told.size() < 24)
            told.append(QString::fromUtf8(line));
    }
    return told.join(u'\n');
}

/// Returns the fault of a run in another process; empty if there was none.
QString perform(const QStringList &arguments, const QString &record, int longest)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments + QStringList{u"--record"_s, record});
    if (!process.waitForFinished(longest)) {
        process.kill();
        process.waitForFinished();
        return u"hang: the program did not come to an end"_s;
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    const auto run = readRun(record);
    return run && !run->fault.isEmpty() ? run->fault
                                        : u"crash: "_s + lastWords(process.readAllStandardError());
}

void report(const QString &title, const RecordedRun &run)
{
    say(u"\n%1, on the pages \"%2\":"_s.arg(title, run.startPages));
    for (const Action &action : run.actions)
        say(u"    "_s + QString::fromUtf8(lineOf(action)));
    say(run.fault);
}

void shrinkAndReport(const QString &seed, RecordedRun run, const QString &record, const QStringList &options)
{
    say(u"Seed %1 failed after %2 actions: %3"_s.arg(seed).arg(run.actions.size()).arg(run.fault));
    const auto fails = [&](const QList<Action> &actions) {
        RecordedRun shorter{.startPages = run.startPages, .actions = actions, .fault = {}};
        writeRun(record, shorter);
        shorter.fault = perform(QStringList{u"--replay"_s, record} + options, record, longestReplay);
        if (shorter.fault.isEmpty() || shorter.kindOfFault() != run.kindOfFault())
            return false;
        run.fault = shorter.fault;
        return true;
    };
    run.actions = shrink(run.actions, fails, mostReplays);
    const QString kept = QCoreApplication::applicationDirPath() + u"/failed-%1.run"_s.arg(seed);
    writeRun(kept, run);
    report(u"Seed %1, shrunk to %2 actions"_s.arg(seed).arg(run.actions.size()), run);
    say(u"To play it again: ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software "
        "%1 --replay %2"_s.arg(QCoreApplication::applicationFilePath(), kept));
}

} // namespace

bool writeAtRandom(const QStringList &seeds, int seconds, const QStringList &options)
{
    const QTemporaryDir folder;
    const QString record = folder.filePath(u"run"_s);
    const int share = std::clamp(seconds / int(seeds.size()), 1, longestShare);
    bool isFine = true;
    QElapsedTimer timer;
    timer.start();
    for (qsizetype next = 0; next < seeds.size() || timer.elapsed() < (seconds - share) * 1000; ++next) {
        const QString &named = seeds.at(std::min(next, seeds.size() - 1));
        if (next >= seeds.size() && named != u"new")
            break;
        const QString seed =
            named == u"new" ? QString::number(QRandomGenerator::global()->bounded(1'000'000)) : named;
        say(u"seed %1"_s.arg(seed));
        const QStringList work{u"--write"_s, u"--seeds"_s, seed, u"--seconds"_s, QString::number(share)};
        const QString fault = perform(work + options, record, share * 1000 + longestStart);
        if (fault.isEmpty())
            continue;
        isFine = false;
        RecordedRun run = readRun(record).value_or(RecordedRun());
        run.fault = fault;
        shrinkAndReport(seed, run, record, options);
    }
    return isFine;
}
