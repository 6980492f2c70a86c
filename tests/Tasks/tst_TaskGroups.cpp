#include "Tasks/TaskGroups.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
Block checklist(const QStringList &texts)
{
    Block block(BlockType::sticky);
    block.todos.emplace();
    for (const QString &text : texts)
        block.todos->append({.text = text.mid(1), .done = text.startsWith(u'x')});
    return block;
}

PelkoDocument page(Space space, const QList<Block> &blocks)
{
    PelkoDocument document(space, 800'000'000);
    document.blocks = blocks;
    return document;
}

QStringList texts(const QList<TaskGroup> &groups)
{
    QStringList result;
    for (const TaskGroup &group : groups) {
        result << group.doc.title();
        for (const Task &task : group.todos)
            result << (task.todo.done ? u"x"_s : u"-"_s) + task.todo.text;
    }
    return result;
}
} // namespace

class TestTaskGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLibraryWithoutEntriesHasNoGroups();
    void onlyChecklistsCount();
    void tickedEntriesAreListedAndNotCounted();
    void archivedPagesAndAllSpacesCountInTheOrderOfTheStore();
    void twoChecklistsOfAPageStandUnderOneHeading();
    void aTaskKnowsItsBlockAndItsPage();
};

void TestTaskGroups::aLibraryWithoutEntriesHasNoGroups()
{
    const QList<PelkoDocument> library{page(Space::work, {Block(BlockType::textLarge, u"Title"_s)}),
                                       page(Space::work, {Block(BlockType::sticky)}),
                                       page(Space::work, {checklist({})}), page(Space::work, {})};

    QCOMPARE(todosByDoc(library), QList<TaskGroup>{});
    QCOMPARE(pendingCount(todosByDoc(library)), 0);
}

void TestTaskGroups::onlyChecklistsCount()
{
    Block text(BlockType::textSmall, u"words"_s);
    text.todos = QList<TodoItem>{{.text = u"not a task"_s}};

    QCOMPARE(todosByDoc({page(Space::work, {text})}), QList<TaskGroup>{});
}

void TestTaskGroups::tickedEntriesAreListedAndNotCounted()
{
    const auto groups = todosByDoc({page(Space::work, {checklist({u"xwool socks"_s, u"xnotebook"_s})})});

    QCOMPARE(texts(groups), QStringList({u"Untitled"_s, u"xwool socks"_s, u"xnotebook"_s}));
    QCOMPARE(pendingCount(groups), 0);
}

void TestTaskGroups::archivedPagesAndAllSpacesCountInTheOrderOfTheStore()
{
    QList<PelkoDocument> library;
    for (const Space space : {Space::journal, Space::work, Space::ideas}) {
        library.append(page(space, {Block(BlockType::textLarge, rawValue(space)), checklist({u"-do"_s})}));
        library.last().createdAt += 10.0 * double(library.size());
    }
    library[0].isArchived = true;
    library[2].isPinned = true;

    const auto groups = todosByDoc(library);
    QCOMPARE(texts(groups), QStringList({u"journal"_s, u"-do"_s, u"work"_s, u"-do"_s, u"ideas"_s, u"-do"_s}));
    QCOMPARE(pendingCount(groups), 3);
}

void TestTaskGroups::twoChecklistsOfAPageStandUnderOneHeading()
{
    const auto groups =
        todosByDoc({page(Space::work, {checklist({u"-one"_s, u"xtwo"_s}), Block(BlockType::textSmall),
                                       checklist({u"-three"_s})})});

    QCOMPARE(texts(groups), QStringList({u"Untitled"_s, u"-one"_s, u"xtwo"_s, u"-three"_s}));
    QCOMPARE(pendingCount(groups), 2);
}

void TestTaskGroups::aTaskKnowsItsBlockAndItsPage()
{
    const PelkoDocument document = page(Space::work, {checklist({u"-one"_s}), checklist({u"-two"_s})});

    const TaskGroup group = todosByDoc({document}).first();
    QCOMPARE(group.doc, document);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(group.todos[i].block, document.blocks[i]);
        QCOMPARE(group.todos[i].todo, document.blocks[i].todos->first());
    }
}

PELKO_TEST(TestTaskGroups)
#include "tst_TaskGroups.moc"
