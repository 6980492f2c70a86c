// The navigation over ten thousand sparks and a million words. What a word that is typed takes to find,
// against one plain scan of the same texts that heeds case and accents; a key in the search field until its
// frame is drawn, against that scan too; and the opening of the overlay, against another dialog over the same
// page.

#include "Platform/SystemClock.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "Store/DocumentWriter.h"
#include "support/Libraries.h"
#include "support/NoFile.h"
#include "support/RatioTable.h"
#include "support/RealEditorServices.h"
#include "support/Stage.h"

#include <QGuiApplication>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
constexpr Milliseconds keyTime(50);

class MemorySink : public ByteSink
{
public:
    QByteArray bytes;

    std::optional<FileError> write(QByteArrayView piece) override
    {
        bytes.append(piece);
        return std::nullopt;
    }
};

/// A data file that is read from memory.
class LibraryFile : public NoFile
{
public:
    Contents read() override
    {
        MemorySink sink;
        DocumentWriter writer;
        if (auto error = writer.write(makeLibrary(LibrarySize::words), sink))
            return *error;
        return sink.bytes;
    }
};

/// The program over a million words.
struct Program {
    RealEditorServices services;
    SystemClock clock;
    LibraryFile file;
    AppState appState{services.scheduler, clock, file};
    MainViewModel main{appState, clock, services.forEditor};
};

/// Its window.
class Shown
{
public:
    Shown()
        : m_stage("import QtQuick\nimport Pelko\n"
                  "Window { id: root; width: 1100; height: 750; required property MainViewModel main\n"
                  "MainView { id: view; anchors.fill: parent; main: root.main; focus: true }\n"
                  "Alerts { anchors.fill: parent; main: root.main; backdrop: view } }",
                  {{u"main"_s, QVariant::fromValue(&m_program.main)}})
    {
    }

    Program &program() { return m_program; }
    Stage &stage() { return m_stage; }

private:
    Program m_program;
    Stage m_stage;
};

/// Reads every text once and folds nothing.
qsizetype plainScan(const QList<PelkoDocument> &documents, const QString &word)
{
    qsizetype found = 0;
    for (const PelkoDocument &document : documents) {
        found += std::ranges::any_of(document.blocks,
                                     [&word](const Block &block) { return block.content.contains(word); });
    }
    return found;
}

void scanPlainly(benchmark::State &state, const QString &word)
{
    const Program program;
    for (auto _ : state) {
        const Milliseconds start = worked();
        qsizetype found = plainScan(program.appState.documents(), word);
        benchmark::DoNotOptimize(found);
        state.SetIterationTime((worked() - start).count() / 1000);
    }
}

void find(benchmark::State &state, const QString &words)
{
    Program program;
    program.appState.setShowNav(true);
    for (auto _ : state) {
        const Milliseconds start = worked();
        program.main.navigation()->search(words);
        state.SetIterationTime((worked() - start).count() / 1000);
        program.main.navigation()->search({});
    }
}

/// The letters of a word one after the other, each with the frame that shows what it found.
void typeWord(benchmark::State &state)
{
    Shown shown;
    shown.program().appState.setShowNav(true);
    shown.stage().settle(40);
    const QString word = u"morning"_s;
    int late = 0;
    qsizetype typed = 0;
    for (auto _ : state) {
        if (typed == word.size()) {
            shown.program().main.navigation()->search({});
            shown.stage().settle(2);
            typed = 0;
        }
        const QChar letter = word.at(typed++);
        const Milliseconds start = worked();
        shown.stage().type(Qt::Key(letter.toUpper().unicode()), letter);
        shown.stage().draw();
        const Milliseconds work = worked() - start;
        state.SetIterationTime(work.count() / 1000);
        late += work > keyTime;
    }
    state.counters["late"] = late;
    if (!word.startsWith(shown.program().main.navigation()->query()))
        state.SkipWithError("the field has to have the keyboard");
}

template <typename Open, typename Close>
void measureOpening(benchmark::State &state, Open openIt, Close closeIt)
{
    Shown shown;
    int late = 0;
    for (auto _ : state) {
        const Milliseconds start = worked();
        openIt(shown.program());
        QCoreApplication::sendPostedEvents();
        shown.stage().draw();
        const Milliseconds work = worked() - start;
        state.SetIterationTime(work.count() / 1000);
        late += work > frameTime;
        closeIt(shown.program());
        shown.stage().settle(30);
    }
    state.counters["late"] = late;
}

void openNavigation(benchmark::State &state)
{
    measureOpening(
        state, [](Program &program) { program.appState.setShowNav(true); },
        [](Program &program) { program.appState.setShowNav(false); });
}

/// Over the space with all the sparks.
void openSparks(benchmark::State &state)
{
    measureOpening(
        state,
        [](Program &program) {
            program.appState.switchSpace(Space::ideas);
            program.appState.setShowNav(true);
        },
        [](Program &program) { program.appState.setShowNav(false); });
}

void openAbout(benchmark::State &state)
{
    measureOpening(
        state, [](Program &program) { program.appState.setShowAbout(true); },
        [](Program &program) { program.appState.setShowAbout(false); });
}

template <typename Function, typename... Arguments>
void add(const char *name, int iterations, Function function, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name, function, arguments...)
        ->Iterations(iterations)
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}

void addFinding(const std::string &name, const QString &words)
{
    add((name + "/floor").c_str(), 10, scanPlainly, words.section(u' ', 0, 0));
    add((name + "/Pelko").c_str(), 10, find, words);
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QSG_RENDER_LOOP", "basic");
    QGuiApplication application(argc, argv);
    addFinding("find/one letter", u"m"_s);
    addFinding("find/a word", u"morning"_s);
    addFinding("find/two words", u"morning zurich"_s);
    addFinding("find/a word not there", u"kettle"_s);
    add("key to frame/a word/floor", 10, scanPlainly, u"morning"_s);
    add("key to frame/a word/Pelko", 42, typeWord);
    add("open/Work/floor", 10, openAbout);
    add("open/Work/Pelko", 10, openNavigation);
    add("open/Ideas/floor", 10, openAbout);
    add("open/Ideas/Pelko", 10, openSparks);
    return runAndPrintRatios(argc, argv);
}
