#include "Editor/TodoListModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace
{
constexpr qreal rowHeight = 20;
constexpr qsizetype many = 1'000;
const QUuid blockID = QUuid::createUuid();

QList<TodoItem> entries(qsizetype count)
{
    QList<TodoItem> items;
    for (qsizetype index = 0; index < count; ++index)
        items.append({.text = QString::number(index)});
    return items;
}

TextAddress addressOf(const TodoItem &item)
{
    return {.blockID = blockID, .partID = item.id};
}

/// Returns the height of all rows and gaps if each row has its usual height.
qreal heightOf(const TodoListModel &model)
{
    qreal height = model.gapBelow();
    for (const TodoEntry &entry : model.rows())
        height += entry.gap + rowHeight;
    return height;
}
} // namespace

class TestTodoListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShortChecklistHasAllEntriesAsRows()
    {
        TodoListModel model(blockID);
        model.publish(entries(TodoListModel::shortList));
        QCOMPARE(model.rowCount(), int(TodoListModel::shortList));
        QCOMPARE(model.gapBelow(), 0);
        model.setView(100'000, 100'600, rowHeight);
        QCOMPARE(model.rowCount(), int(TodoListModel::shortList));
    }

    void aLongChecklistHasTheEntriesInSightAsRows()
    {
        TodoListModel model(blockID);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setView(0, 600, rowHeight);
        model.publish(entries(many));
        QCOMPARE(model.rows().first().item.text, QStringLiteral("0"));
        for (const qreal top : {5'000.0, 5'210.0, 19'400.0, 0.0}) {
            model.setView(top, top + 600, rowHeight);
            QVERIFY(model.rowCount() < 100);
            QVERIFY(model.rows().first().gap <= top);
            QVERIFY(model.gapBelow() <= many * rowHeight - top - 600);
            QCOMPARE(heightOf(model), many * rowHeight);
        }
    }

    void anEntryThatIsKeptHasItsRowOutOfSight()
    {
        TodoListModel model(blockID);
        const QList<TodoItem> items = entries(many);
        model.setView(0, 600, rowHeight);
        model.publish(items);
        model.keep(addressOf(items.at(700)));
        QCOMPARE(model.rows().last().item, items.at(700));
        QCOMPARE(heightOf(model), many * rowHeight);
        model.setView(18'000, 18'600, rowHeight);
        QCOMPARE(model.rows().first().item, items.at(700));
        QCOMPARE(model.rows().first().gap, 700 * rowHeight);
        model.keep(addressOf(items.at(3)));
        QCOMPARE(model.rows().first().item, items.at(3));
        QCOMPARE(heightOf(model), many * rowHeight);
    }

    void anEntryOutOfSightKeepsItsMeasuredHeight()
    {
        TodoListModel model(blockID);
        const QList<TodoItem> items = entries(many);
        model.setView(0, 600, rowHeight);
        model.publish(items);
        model.setHeight(addressOf(items.first()), 3 * rowHeight);
        model.setView(10'000, 10'600, rowHeight);
        QCOMPARE(heightOf(model), (many + 2) * rowHeight);
    }

    void tellsWhetherThereAreEntries()
    {
        TodoListModel model(blockID);
        const QSignalSpy changes(&model, &TodoListModel::entriesChanged);
        QVERIFY(model.isEmpty());
        model.publish({});
        QCOMPARE(changes.size(), 0);
        model.publish(entries(1));
        QVERIFY(!model.isEmpty());
        QCOMPARE(changes.size(), 1);
        model.publish(entries(2));
        QCOMPARE(changes.size(), 1);
    }
};

PELKO_TEST(TestTodoListModel)
#include "tst_TodoListModel.moc"
