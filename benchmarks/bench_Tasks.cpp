// What the open tasks panel adds to a key, in a library of ten thousand sparks and a million words: first
// from the field's report to all that is announced, then from the key to the frame that shows it. The floor
// is the same key with the panel closed. And what it takes to open the panel there.

#include "Editor/EditorViewModel.h"
#include "Platform/SystemClock.h"
#include "Services/CalendarStore.h"
#include "Services/Preferences.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "support/NoFile.h"
#include "support/RatioTable.h"
#include "support/RealEditorServices.h"
#include "support/Stage.h"

#include <QHash>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
constexpr int sparkCount = 10'000;
const QString hundredWords = u"a thought held on "_s.repeated(25);
const QString paragraph = u"Every morning offers the same trade: one quiet hour"_s;

/// Keeps nothing beyond the run.
class Forgetful : public Preferences
{
public:
    std::optional<qint64> integer(const QString &key) const override
    {
        return m_integers.contains(key) ? std::optional(m_integers.value(key)) : std::nullopt;
    }
    std::optional<Timestamp> date(const QString &key) const override
    {
        return m_dates.contains(key) ? std::optional(m_dates.value(key)) : std::nullopt;
    }
    void setInteger(const QString &key, qint64 value) override { m_integers.insert(key, value); }
    void setDate(const QString &key, Timestamp value) override { m_dates.insert(key, value); }

private:
    QHash<QString, qint64> m_integers;
    QHash<QString, Timestamp> m_dates;
};

/// A desktop on which nobody keeps a calendar.
class NoCalendars : public CalendarStore
{
public:
    ScheduledCall fetch(const CalendarWindow &, Completion) override { return {}; }
};

/// The library with a page of fifty blocks open, one of them a checklist.
class Desk
{
public:
    Desk() : m_state(m_services.scheduler, m_clock, m_file)
    {
        for (int spark = 0; spark < sparkCount; ++spark)
            m_state.captureSpark(hundredWords);
        m_state.createDocument(Space::work);
        PelkoDocument page = *m_state.openDocument();
        page.blocks.resize(50);
        for (Block &block : page.blocks) {
            block.id = QUuid::createUuid();
            block.content = paragraph;
        }
        page.blocks.last().type = BlockType::sticky;
        page.blocks.last().todos = QList<TodoItem>{{.text = u"Write the ugly draft"_s}};
        m_state.updateDocument(page);
    }

    AppState &state() { return m_state; }
    const EditorServices &editorServices() const { return m_services.forEditor; }
    const Clock &clock() const { return m_clock; }
    TasksServices tasksServices() { return {m_services.scheduler, m_clock, m_preferences, m_calendars}; }
    /// A block in the middle of the page.
    TextAddress address() const { return {.blockID = m_state.openDocument()->blocks.at(5).id}; }

private:
    RealEditorServices m_services;
    SystemClock m_clock;
    NoFile m_file;
    Forgetful m_preferences;
    NoCalendars m_calendars;
    AppState m_state;
};

void keyToAnnouncement(benchmark::State &state, bool isOpen)
{
    Desk desk;
    MainViewModel main(desk.state(), desk.clock(), desk.editorServices());
    TasksViewModel tasks(desk.state(), desk.tasksServices());
    EditorViewModel &editor = *main.openEditor(main.openDocumentID());
    if (isOpen)
        tasks.toggle();
    const TextAddress address = desk.address();
    QString text = paragraph;
    for (auto _ : state) {
        text.endsWith(u'x') ? text.chop(1) : void(text.append(u" x"_s));
        editor.typed(address, text, int(text.size()));
    }
}

/// The main view, with the panel open or closed.
class Window
{
public:
    explicit Window(bool isOpen)
        : m_stage("import QtQuick\nimport Pelko\n"
                  "Window { id: root; width: 1100; height: 750\n"
                  "required property MainViewModel main; required property TasksViewModel tasks\n"
                  "MainView { anchors.fill: parent; main: root.main; tasks: root.tasks; focus: true } }",
                  {{u"main"_s, QVariant::fromValue(&m_main)}, {u"tasks"_s, QVariant::fromValue(&m_tasks)}})
    {
        if (isOpen)
            m_tasks.toggle();
        m_stage.settle(90);
        Q_EMIT m_main.editor()->focusRequested(m_desk.address(), -1);
        m_stage.settle(20);
    }

    Stage &stage() { return m_stage; }

private:
    Desk m_desk;
    MainViewModel m_main{m_desk.state(), m_desk.clock(), m_desk.editorServices()};
    TasksViewModel m_tasks{m_desk.state(), m_desk.tasksServices()};
    Stage m_stage;
};

void keyToFrame(benchmark::State &state, bool isOpen)
{
    Window window(isOpen);
    writeKeys(state, window.stage());
}

/// Everything is read once, as a floor; then what a panel does when it opens.
void readLibrary(benchmark::State &state)
{
    Desk desk;
    for (auto _ : state) {
        qint64 words = 0;
        for (const PelkoDocument &document : desk.state().documents())
            words += document.wordCount();
        benchmark::DoNotOptimize(words);
    }
}

void openPanel(benchmark::State &state)
{
    Desk desk;
    for (auto _ : state) {
        const TasksPanelViewModel panel(desk.state(), desk.tasksServices());
        benchmark::DoNotOptimize(panel.wordTotal());
    }
}

template <typename Function, typename... Arguments>
benchmark::internal::Benchmark *add(const char *name, int iterations, Function function,
                                    Arguments... arguments)
{
    return benchmark::RegisterBenchmark(name, function, arguments...)
        ->Iterations(iterations)
        ->Repetitions(7)
        ->Unit(benchmark::kMillisecond);
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QSG_RENDER_LOOP", "basic");
    QGuiApplication application(argc, argv);
    add("key/1 million words/floor", 1000, keyToAnnouncement, false)->UseRealTime();
    add("key/1 million words/open", 1000, keyToAnnouncement, true)->UseRealTime();
    add("key to frame/1 million words/floor", 200, keyToFrame, false)->UseManualTime();
    add("key to frame/1 million words/open", 200, keyToFrame, true)->UseManualTime();
    add("opening/1 million words/floor", 20, readLibrary)->UseRealTime();
    add("opening/1 million words/panel", 20, openPanel)->UseRealTime();
    return runAndPrintRatios(argc, argv);
}
