#include "writer/RandomActions.h"
#include "writer/RandomRuns.h"
#include "writer/RecordedRun.h"
#include "writer/StartPages.h"
#include "writer/Writer.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

#include <cstdio>
#include <cstdlib>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{

constexpr int actionsPerRun = 100;

struct Options {
    QString record;
    QStringList ignored;
    QStringList pages;
    QStringList leftOut;
};

/// Performs a run; what was done before a sudden end is in the record all the same. Returns the fault, if
/// any.
std::optional<QString> perform(const QString &startPages, const std::function<std::optional<Action>()> &next,
                               const Options &options)
{
    RunRecorder recorder(options.record, startPages);
    Writer writer(startPages, options.ignored);
    while (const auto action = next()) {
        recorder.add(*action);
        if (const auto fault = writer.perform(*action)) {
            recorder.add(*fault);
            return fault;
        }
    }
    return std::nullopt;
}

/// Run after run for so long. Each is recorded in place of the one before.
int write(quint32 seed, int seconds, const Options &options)
{
    QElapsedTimer timer;
    timer.start();
    for (quint32 run = 0; timer.elapsed() < seconds * 1000; ++run) {
        RandomActions random(seed * 1'000 + run);
        const QStringList &names = options.pages;
        int left = actionsPerRun;
        const auto isLeftOut = [&](const Action &action) { return options.leftOut.contains(nameOf(action)); };
        const auto next = [&]() -> std::optional<Action> {
            if (left-- <= 0 || timer.elapsed() >= seconds * 1000)
                return std::nullopt;
            Action action = random.next();
            while (isLeftOut(action))
                action = random.next();
            return action;
        };
        if (perform(names.at((seed + run) % names.size()), next, options))
            return 1;
        std::printf("seed %u, run %u: %d actions\n", seed, run, actionsPerRun - std::max(left, 0));
        std::fflush(stdout);
    }
    return 0;
}

int replay(const QString &file, const Options &options)
{
    const auto run = readRun(file);
    if (!run)
        return 2;
    auto action = run->actions.begin();
    const auto next = [&] { return action == run->actions.end() ? std::nullopt : std::optional(*action++); };
    const auto fault = perform(run->startPages, next, options);
    if (fault && options.record.isEmpty())
        std::fprintf(stderr, "%s\n", fault->toUtf8().constData());
    return fault ? 1 : 0;
}

} // namespace

/// --write and --replay do the work; without them, processes are started that do it, so that one that ends
/// suddenly can be looked into.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({u"seconds"_s, u"How long to write."_s, u"seconds"_s, u"60"_s});
    parser.addOption({u"seeds"_s, u"Seeds, with commas between them; \"new\" is another each time."_s,
                      u"seeds"_s, u"new"_s});
    parser.addOption({u"record"_s, u"Where the run is recorded."_s, u"file"_s});
    parser.addOption({u"pages"_s, u"The libraries to start from, with commas between them."_s, u"names"_s,
                      StartPages::names().join(u',')});
    parser.addOption({u"ignore"_s, u"Kinds of faults to take no notice of, such as \"file\"."_s, u"kinds"_s});
    parser.addOption({u"without"_s, u"Actions to leave out, such as \"compose\"."_s, u"actions"_s});
    parser.addOption({u"replay"_s, u"Performs a recorded run again."_s, u"file"_s});
    parser.addOption({u"write"_s, u"Writes in this process."_s});
    parser.process(application);
    const Options options{.record = parser.value(u"record"_s),
                          .ignored = parser.value(u"ignore"_s).split(u','),
                          .pages = parser.value(u"pages"_s).split(u','),
                          .leftOut = parser.value(u"without"_s).split(u',')};
    const int seconds = parser.value(u"seconds"_s).toInt();
    const QStringList seeds = parser.value(u"seeds"_s).split(u',');
    QStringList handedOn;
    for (const QString &name : {u"pages"_s, u"ignore"_s, u"without"_s})
        handedOn << u"--"_s + name << parser.value(name);
    const bool isWriter = parser.isSet(u"write"_s) || parser.isSet(u"replay"_s);
    if (!isWriter)
        return writeAtRandom(seeds, seconds, handedOn) ? EXIT_SUCCESS : EXIT_FAILURE;
    Writer::watchConsole();
    if (parser.isSet(u"replay"_s))
        return replay(parser.value(u"replay"_s), options);
    return write(seeds.first().toUInt(), seconds, options);
}
