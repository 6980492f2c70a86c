// What one key costs from the text field's report to the announced row: editing rule, store, list model. The
// floor is what pages that are values in one list cannot do without: finding the page, and a copy of its
// blocks with the new text in one of them, put in place of the old.

#include "Editor/EditorViewModel.h"
#include "Platform/SystemClock.h"
#include "Store/AppState.h"
#include "support/Libraries.h"
#include "support/NoFile.h"
#include "support/RatioTable.h"
#include "support/RealEditorServices.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{
enum class PageSize { usual, huge, amongSparks, withPictures };

int sparkCount(PageSize size)
{
    return size == PageSize::amongSparks ? 10'000 : 0;
}

PelkoDocument makePage(PageSize size)
{
    PelkoDocument page(Space::work, 800'000'000);
    const int paragraphs = size == PageSize::huge ? 2000 : 50;
    page.blocks.resize(paragraphs + (size == PageSize::withPictures ? 20 : 0));
    for (qsizetype row = 0; row < page.blocks.size(); ++row) {
        Block &block = page.blocks[row];
        if (row < paragraphs) {
            block.content = u"A morning page, quietly. "_s.repeated(8);
        } else {
            block.type = BlockType::image;
            block.imageData = QByteArray(3'000'000, 'x');
        }
    }
    return page;
}

/// An editor on one page of a store, and a field in the middle of it that is typed in.
class Desk
{
public:
    explicit Desk(PageSize size) : m_state(m_services.scheduler, m_clock, m_file)
    {
        for (int spark = 0; spark < sparkCount(size); ++spark)
            m_state.captureSpark(u"A thought that was held on to: %1"_s.arg(spark));
        m_state.createDocument(Space::work);
        PelkoDocument page = makePage(size);
        page.id = *m_state.openDocumentID();
        const Block &middle = page.blocks.at(25);
        m_address.blockID = middle.id;
        m_text = middle.content;
        m_state.updateDocument(page);
        m_editor = std::make_unique<EditorViewModel>(m_state, m_services.forEditor, page.id);
        const auto *blocks = qobject_cast<QAbstractItemModel *>(m_editor->blocks());
        QObject::connect(blocks, &QAbstractItemModel::dataChanged, m_editor.get(), [this] { ++m_changes; });
    }

    /// Adds a character, or takes it away again.
    void typeOneKey()
    {
        m_text.endsWith(u'x') ? m_text.chop(1) : void(m_text.append(u'x'));
        m_editor->typed(m_address, m_text, int(m_text.size()));
    }

    /// A new block below and back.
    void typeReturnAndDelete()
    {
        m_editor->typed(m_address, m_text + u'\n', int(m_text.size()) + 1);
        m_editor->typed({.blockID = QUuid(m_editor->focusedBlockID())}, {}, 0);
    }

    /// The rows that were announced as changed.
    qint64 changes() const { return m_changes; }
    qsizetype blockCount() const { return m_state.openDocument()->blocks.size(); }

private:
    RealEditorServices m_services;
    SystemClock m_clock;
    NoFile m_file;
    AppState m_state;
    std::unique_ptr<EditorViewModel> m_editor;
    TextAddress m_address;
    QString m_text;
    qint64 m_changes = 0;
};

void keyFloor(benchmark::State &state, PageSize size)
{
    QList<PelkoDocument> documents(sparkCount(size));
    documents.append(makePage(size));
    const QUuid id = documents.last().id;
    QString text = documents.last().blocks.at(25).content;
    for (auto _ : state) {
        text.endsWith(u'x') ? text.chop(1) : void(text.append(u'x'));
        const auto found = std::ranges::find(documents, id, &PelkoDocument::id);
        PelkoDocument page = *found;
        page.blocks[25].content = text;
        *found = std::move(page);
    }
}

void keyPelko(benchmark::State &state, PageSize size)
{
    Desk desk(size);
    for (auto _ : state)
        desk.typeOneKey();
    if (desk.changes() != qint64(state.iterations()))
        state.SkipWithError("a key has to change exactly one row");
}

void returnPelko(benchmark::State &state, PageSize size)
{
    Desk desk(size);
    const qsizetype before = desk.blockCount();
    for (auto _ : state)
        desk.typeReturnAndDelete();
    if (desk.blockCount() != before)
        state.SkipWithError("what Return adds has to be deleted again");
}

void registerAll()
{
    struct Case {
        const char *name;
        PageSize size;
        int iterations;
    };
    for (const Case &each :
         {Case{"50 blocks", PageSize::usual, 4000}, Case{"2,000 blocks", PageSize::huge, 400},
          Case{"10,000 sparks", PageSize::amongSparks, 1000},
          Case{"20 photos", PageSize::withPictures, 200}}) {
        const auto add = [&each](const char *task, const char *way, auto *measure) {
            const std::string name = std::string(task) + "/" + each.name + "/" + way;
            benchmark::RegisterBenchmark(name.c_str(), measure, each.size)
                ->Iterations(each.iterations)
                ->Repetitions(9)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        };
        add("key", "floor", keyFloor);
        add("key", "Pelko", keyPelko);
        add("Return", "Pelko", returnPelko);
    }
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv); // the scheduler's timers need its event loop
    registerAll();
    return runAndPrintRatios(argc, argv);
}
