// What a writer feels of a page. From a key to its frame, against a window with one plain text field: a page
// of 2,000 blocks should answer like one of a single block. And the frames while a block is dragged over
// fifty rows, against plain scrolling over the same rows. Each frame is drawn here and now, on this thread,
// so that no wait for a screen hides the work.

#include "Editor/EditorViewModel.h"
#include "Platform/SystemClock.h"
#include "Store/AppState.h"
#include "support/NoFile.h"
#include "support/RatioTable.h"
#include "support/RealEditorServices.h"
#include "support/Stage.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QtQml/QQmlExtensionPlugin>

#include <chrono>
#include <thread>

Q_IMPORT_QML_PLUGIN(PelkoPlugin)

using namespace Qt::StringLiterals;

namespace
{
const QString paragraph = u"Every morning offers the same trade: one quiet hour against a whole loud day. "_s;

/// A plain window with one text field.
class PlainField
{
public:
    PlainField()
        : m_stage("import QtQuick\n"
                  "Window { width: 1100; height: 750; property alias text: field.text\n"
                  "TextEdit { id: field; anchors.fill: parent; focus: true; wrapMode: TextEdit.Wrap\n"
                  "font.pixelSize: 16; renderType: Text.NativeRendering } }",
                  {{u"text"_s, paragraph}})
    {
    }

    Stage &stage() { return m_stage; }

private:
    Stage m_stage;
};

/// The editor as the program shows it, on a page of so many blocks.
class Page
{
public:
    explicit Page(int blocks) : m_state(m_services.scheduler, m_clock, m_file)
    {
        m_state.createDocument(Space::work);
        PelkoDocument page = *m_state.openDocument();
        page.blocks.clear();
        for (int row = 0; row < blocks; ++row)
            page.blocks.append(Block(BlockType::textSmall, paragraph));
        m_state.updateDocument(page);
        m_editor = new EditorViewModel(m_state, m_services.forEditor, page.id, &m_owner);
        m_stage = std::make_unique<Stage>(
            "import QtQuick\nimport Pelko\n"
            "Window { id: root; width: 1100; height: 750; required property EditorViewModel editor\n"
            "EditorView { anchors.fill: parent; editor: root.editor; focus: true } }",
            QVariantMap{{u"editor"_s, QVariant::fromValue(m_editor)}});
    }

    ~Page() { m_stage.reset(); }

    Stage &stage() { return *m_stage; }
    const QList<Block> &blocks() const { return m_state.documents().constFirst().blocks; }

    void focus(qsizetype row)
    {
        Q_EMIT m_editor->focusRequested({.blockID = blocks().at(row).id}, -1);
        m_stage->settle(20);
    }

    QQuickItem &list() const
    {
        const auto items = m_stage->window().findChildren<QQuickItem *>();
        return **std::ranges::find_if(
            items, [](const QQuickItem *item) { return item->inherits("QQuickListView"); });
    }

private:
    RealEditorServices m_services;
    SystemClock m_clock;
    NoFile m_file;
    AppState m_state;
    QObject m_owner;
    EditorViewModel *m_editor;
    std::unique_ptr<Stage> m_stage;
};

void keyFloor(benchmark::State &state)
{
    PlainField field;
    writeKeys(state, field.stage());
}

void keyPelko(benchmark::State &state, int blocks)
{
    Page page(blocks);
    page.focus(blocks / 2);
    writeKeys(state, page.stage());
}

/// Plays a frame sixty times a second and counts the work of each.
template <typename Step>
void play(benchmark::State &state, Stage &stage, Step step)
{
    int late = 0;
    for (auto _ : state) {
        const auto next = std::chrono::steady_clock::now() + frameTime;
        const Milliseconds start = worked();
        step();
        stage.breathe();
        stage.draw();
        const Milliseconds work = worked() - start;
        state.SetIterationTime(work.count() / 1000);
        late += work > frameTime;
        std::this_thread::sleep_until(next);
    }
    state.counters["late"] = late;
}

void scrollFloor(benchmark::State &state)
{
    Page page(200);
    QQuickItem &list = page.list();
    play(state, page.stage(),
         [&list] { list.setProperty("contentY", list.property("contentY").toReal() + 13); });
}

void dragPelko(benchmark::State &state)
{
    Page page(200);
    const QUuid dragged = page.blocks().constFirst().id;
    const qreal margin = 200;
    QPointF place(margin, 75);
    page.stage().point(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    play(state, page.stage(), [&] {
        place.setY(std::min(place.y() + 25, 696.0)); // down to the edge, which scrolls
        page.stage().point(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
    });
    page.stage().point(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    if (std::ranges::find(page.blocks(), dragged, &Block::id) - page.blocks().begin() < 50)
        state.SkipWithError("the block has to pass fifty rows");
}

void addKeys(const char *page, int blocks)
{
    const std::string row = std::string("key to frame/") + page;
    const auto add = [&row](const char *way, auto measure) {
        benchmark::RegisterBenchmark((row + way).c_str(), measure)
            ->Iterations(200)
            ->Repetitions(7)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
    };
    add("/floor", keyFloor);
    add("/Pelko", [blocks](benchmark::State &state) { keyPelko(state, blocks); });
}

void addMotion(const char *name, void (*measure)(benchmark::State &))
{
    benchmark::RegisterBenchmark(name, measure)
        ->Iterations(240)
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QSG_RENDER_LOOP", "basic");
    QGuiApplication application(argc, argv);
    addKeys("1 block", 1);
    addKeys("100 blocks", 100);
    addKeys("2,000 blocks", 2000);
    addMotion("frame/over 50 rows/floor", scrollFloor);
    addMotion("frame/over 50 rows/Pelko", dragPelko);
    return runAndPrintRatios(argc, argv);
}
