#include "Tasks/TaskOperations.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
/// Returns a page of a heading, a checklist with these entries, and a body block.
PelkoDocument checklistOf(const QStringList &texts)
{
    PelkoDocument document(Space::work, 800'000'000);
    document.blocks = {Block(BlockType::textLarge, u"Packing list"_s), Block(BlockType::sticky),
                       Block(BlockType::textSmall)};
    document.blocks[1].todos.emplace();
    for (const QString &text : texts)
        document.blocks[1].todos->append({.text = text});
    return document;
}

const QList<TodoItem> &todos(const PelkoDocument &document, qsizetype block = 1)
{
    return *document.blocks[block].todos;
}
} // namespace

class TestTaskOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteTakesOneEntryAndKeepsTheOthersInOrder();
    void deleteTakesEveryEntryOfThatId();
    void deleteOfTheLastEntryLeavesAnEmptyChecklist();
    void deleteInABlockWithoutAChecklistGivesThePageBack();
    void deleteInUnknownBlockReturnsNullopt();
    void addAppendsToTheFirstChecklist();
    void addFillsAChecklistThatIsAbsent();
    void addMakesAChecklistAtTheEnd();
};

void TestTaskOperations::deleteTakesOneEntryAndKeepsTheOthersInOrder()
{
    const PelkoDocument before = checklistOf({u"socks"_s, u"pens"_s, u"tea"_s});

    const auto after = TaskOperations::deleteTodo(before, before.blocks[1].id, todos(before)[1].id);
    PelkoDocument expected = before;
    expected.blocks[1].todos->removeAt(1);
    QCOMPARE(after, expected);
}

void TestTaskOperations::deleteTakesEveryEntryOfThatId()
{
    PelkoDocument before = checklistOf({u"socks"_s, u"pens"_s, u"tea"_s});
    (*before.blocks[1].todos)[2].id = todos(before)[0].id;

    const auto after = TaskOperations::deleteTodo(before, before.blocks[1].id, todos(before)[0].id);
    QCOMPARE(todos(*after), QList<TodoItem>{todos(before)[1]});
}

void TestTaskOperations::deleteOfTheLastEntryLeavesAnEmptyChecklist()
{
    const PelkoDocument before = checklistOf({u"socks"_s});

    const auto after = TaskOperations::deleteTodo(before, before.blocks[1].id, todos(before)[0].id);
    QCOMPARE(after->blocks.size(), 3);
    QCOMPARE(after->blocks[1].todos, QList<TodoItem>{});
}

void TestTaskOperations::deleteInABlockWithoutAChecklistGivesThePageBack()
{
    const PelkoDocument before = checklistOf({});

    QCOMPARE(TaskOperations::deleteTodo(before, before.blocks[0].id, QUuid::createUuid()), before);
}

void TestTaskOperations::deleteInUnknownBlockReturnsNullopt()
{
    PelkoDocument before = checklistOf({u"socks"_s});
    QVERIFY(!TaskOperations::deleteTodo(before, QUuid::createUuid(), todos(before)[0].id));

    before.blocks.clear();
    QVERIFY(!TaskOperations::deleteTodo(before, QUuid::createUuid(), QUuid::createUuid()));
}

void TestTaskOperations::addAppendsToTheFirstChecklist()
{
    PelkoDocument before = checklistOf({u"socks"_s});
    before.blocks.append(checklistOf({u"later"_s}).blocks);

    const PelkoDocument after = TaskOperations::addQuickTask(before, u"  pens "_s);
    PelkoDocument expected = before;
    expected.blocks[1].todos->append({.id = todos(after).last().id, .text = u"  pens "_s});
    QCOMPARE(after, expected);
    QVERIFY(todos(after)[1].id != todos(after)[0].id);
}

void TestTaskOperations::addFillsAChecklistThatIsAbsent()
{
    PelkoDocument before = checklistOf({});
    before.blocks[1].todos.reset();

    const PelkoDocument after = TaskOperations::addQuickTask(before, u"pens"_s);
    QCOMPARE(todos(after).size(), 1);
    QCOMPARE(todos(after)[0].text, u"pens"_s);
}

void TestTaskOperations::addMakesAChecklistAtTheEnd()
{
    PelkoDocument before = checklistOf({});
    before.blocks.removeAt(1);

    const PelkoDocument once = TaskOperations::addQuickTask(before, u"pens"_s);
    Block expected(BlockType::sticky);
    expected.id = once.blocks.last().id;
    expected.todos = {{.id = todos(once, 2)[0].id, .text = u"pens"_s}};
    QCOMPARE(once.blocks, before.blocks + QList<Block>{expected});

    const PelkoDocument twice = TaskOperations::addQuickTask(once, u"tea"_s);
    QCOMPARE(twice.blocks.size(), 3);
    QCOMPARE(todos(twice, 2).size(), 2);
    QCOMPARE(todos(twice, 2)[1].text, u"tea"_s);
}

PELKO_TEST(TestTaskOperations)
#include "tst_TaskOperations.moc"
