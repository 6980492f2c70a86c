#include "Tasks/LibrarySummary.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument titled(const QString &title, const QStringList &tasks = {})
{
    PelkoDocument document(Space::work, 800'000'000);
    document.blocks[0].content = title;
    if (!tasks.isEmpty()) {
        Block sticky(BlockType::sticky);
        sticky.todos.emplace();
        for (const QString &task : tasks)
            sticky.todos->append({.text = task});
        document.blocks.append(sticky);
    }
    return document;
}

qint64 wordCount(const QList<PelkoDocument> &documents)
{
    qint64 words = 0;
    for (const PelkoDocument &document : documents)
        words += document.wordCount();
    return words;
}

/// Returns whether the summary equals a new one.
bool tells(const LibrarySummary &summary, const QList<PelkoDocument> &documents)
{
    const auto toldOf = [&summary](const PelkoDocument &document) {
        const LibrarySummary::Page *page = summary.page(document.id);
        return page && page->doc == document && page->words == document.wordCount();
    };
    return summary.todosByDoc() == todosByDoc(documents) &&
           summary.pendingCount() == pendingCount(todosByDoc(documents)) &&
           summary.wordCount() == wordCount(documents) && std::ranges::all_of(documents, toldOf);
}

/// Returns the row of the only document that differs, as AppState::replacedRow does.
std::optional<qsizetype> onlyDifference(const QList<PelkoDocument> &before, const QList<PelkoDocument> &after)
{
    std::optional<qsizetype> row;
    for (qsizetype other = 0; other < after.size(); ++other) {
        const bool differs = before.size() != after.size() || before[other] != after[other];
        if (differs && row)
            return std::nullopt;
        if (differs)
            row = other;
    }
    return before.size() == after.size() ? row : std::nullopt;
}

/// Makes a random change to a library.
void changeByLot(QList<PelkoDocument> &library, QRandomGenerator &lot)
{
    const int place = library.isEmpty() ? 0 : lot.bounded(int(library.size()));
    switch (library.isEmpty() ? 0 : lot.bounded(8)) {
    case 0:
        library.insert(place, titled(u"A new page"_s, lot.bounded(2) ? QStringList{u"do"_s} : QStringList{}));
        break;
    case 1:
        library.removeAt(place);
        break;
    case 2:
        library[place].blocks[0].content += lot.bounded(2) ? u"x"_s : u" word"_s;
        break;
    case 3:
        library[place].blocks.insert(1, Block(BlockType::textSmall, u"two words"_s));
        break;
    case 4:
        library[place].blocks.swapItemsAt(0, library[place].blocks.size() - 1);
        break;
    case 5:
        if (std::optional<QList<TodoItem>> &todos = library[place].blocks.last().todos)
            todos->first().done = !todos->first().done;
        break;
    case 6:
        library[place].isPinned = !library[place].isPinned.value_or(false);
        break;
    default:
        library.move(place, 0);
    }
}
} // namespace

class TestLibrarySummary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyLibraryHasNoWordsAndNoTasks();
    void wordsOfAllPagesCount();
    void countsWordsBetweenWhiteSpace();
    void tellsWhetherTheListOfTasksReadsDifferently();
    void aPageThatWasPinnedIsReadAgain();
    void equalsANewSummaryAfterAnyChange();
};

void TestLibrarySummary::emptyLibraryHasNoWordsAndNoTasks()
{
    LibrarySummary summary;
    QVERIFY(!summary.read({}));
    QVERIFY(tells(summary, {}));
    QVERIFY(!summary.page(QUuid::createUuid()));
}

void TestLibrarySummary::wordsOfAllPagesCount()
{
    QList<PelkoDocument> library{titled(u"one"_s), titled(u"one two"_s),
                                 titled(u"one two three"_s, {u"not me"_s})};
    library[0].isArchived = true;
    library[1].space = Space::journal;
    library[2].space = Space::ideas;
    library[2].blocks[0].bannerTitle = u"nor me"_s;

    LibrarySummary summary;
    summary.read(library);
    QCOMPARE(summary.wordCount(), 6);
}

void TestLibrarySummary::countsWordsBetweenWhiteSpace()
{
    LibrarySummary summary;
    summary.read({titled(u"one  two\nthree\t four"_s), titled(u"   "_s)});
    QCOMPARE(summary.wordCount(), 4);
}

void TestLibrarySummary::tellsWhetherTheListOfTasksReadsDifferently()
{
    QList<PelkoDocument> library{titled(u"Idle"_s), titled(u"Busy"_s, {u"one"_s, u"two"_s}),
                                 titled(u"Last"_s)};
    LibrarySummary summary;
    QVERIFY(summary.read(library));
    QVERIFY(!summary.read(library));

    library[0].blocks[1].content = u"text"_s;
    QVERIFY2(!summary.read(library), "a page without tasks");
    library[1].blocks[1].content = u"text"_s;
    QVERIFY2(!summary.read(library), "text beside the tasks");
    library[1].blocks[0].content = u"Busier"_s;
    QVERIFY2(summary.read(library), "the heading of the tasks");
    library[1].blocks[2].todos->last().done = true;
    QVERIFY2(summary.read(library), "a tick");
    library.removeLast();
    QVERIFY2(!summary.read(library), "a page less, without tasks");
    library.move(0, 1);
    QVERIFY2(summary.read(library), "another order");
    QVERIFY(tells(summary, library));
    library.removeFirst();
    QVERIFY2(summary.read(library), "a page less, with tasks");
}

void TestLibrarySummary::aPageThatWasPinnedIsReadAgain()
{
    QList<PelkoDocument> library{titled(u"Busy"_s, {u"one"_s})};
    LibrarySummary summary;
    summary.read(library);

    library[0].isPinned = true;
    QVERIFY(!summary.read(library));
    QCOMPARE(summary.page(library[0].id)->doc, library[0]);
}

void TestLibrarySummary::equalsANewSummaryAfterAnyChange()
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        QRandomGenerator lot(seed);
        QList<PelkoDocument> library;
        LibrarySummary summary;
        for (int step = 0; step < 60; ++step) {
            const QList<PelkoDocument> before = library;
            for (int changes = lot.bounded(1, 4); changes > 0; --changes)
                changeByLot(library, lot);
            summary.read(library, onlyDifference(before, library));
            QVERIFY2(tells(summary, library), qPrintable(u"seed %1, step %2"_s.arg(seed).arg(step)));
        }
    }
}

PELKO_TEST(TestLibrarySummary)
#include "tst_LibrarySummary.moc"
