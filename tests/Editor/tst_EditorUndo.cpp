#include "EditorTest.h"
#include "Tasks/TaskOperations.h"

#include <functional>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using Operation = std::function<void(EditorViewModel &)>;

/// A page with a block for every operation.
QList<Block> onePageForAll()
{
    return {block('A', heading, u"Title"_s), block('B', body, u"onetwo"_s), image('C'),
            sticky('D', {todo('x', u"milk"_s), todo('y', u"eggs"_s)}), block('E')};
}

} // namespace

Q_DECLARE_METATYPE(Operation)

class TestEditorUndo : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyOperationIsOneStep_data()
    {
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const Operation &operation) {
            QTest::newRow(name) << operation;
        };
        row("key", [](auto &editor) { editor.typed(address('B'), u"onextwo"_s, 4); });
        row("split", [](auto &editor) { editor.typed(address('B'), u"one\ntwo"_s, 4); });
        row("join", [](auto &editor) { editor.keys()->joinBackwards({QUuid(id('B'))}); });
        row("join of an entry",
            [](auto &editor) { editor.keys()->joinBackwards({QUuid(id('D')), QUuid(id('y'))}); });
        row("join from below", [](auto &editor) { editor.keys()->joinForwards({QUuid(id('A'))}); });
        row("a picture by key", [](auto &editor) { editor.keys()->remove(QUuid(id('C')), true); });
        row("line break", [](auto &editor) { editor.keys()->breakLine({QUuid(id('B'))}, {3, 3}); });
        row("line", [](auto &editor) { editor.keys()->split({QUuid(id('B'))}, {3, 3}); });
        row("adding", [](auto &editor) { editor.addBlock(u"quote"_s); });
        row("adding a checklist", [](auto &editor) { editor.addBlock(u"sticky"_s); });
        row("moving", [](auto &editor) { editor.moveBlock(id('B'), 1); });
        row("dragging", [](auto &editor) {
            editor.drag()->begin(id('A'));
            editor.drag()->enter(id('B'));
            editor.drag()->enter(id('D'));
            editor.drag()->drop();
        });
        row("deleting", [](auto &editor) { editor.deleteBlock(id('B')); });
        row("deleting a picture", [](auto &editor) { editor.deleteBlock(id('C')); });
        row("banner", [](auto &editor) { editor.toggleFullWidth(id('C')); });
        row("entry", [](auto &editor) { editor.typed(address('D', 'x'), u"milks"_s, 5); });
        row("entry split", [](auto &editor) { editor.typed(address('D', 'x'), u"mi\nlk"_s, 3); });
        row("tick", [](auto &editor) { editor.toggleTodo(address('D', 'y')); });
        row("entry added", [](auto &editor) { editor.appendTodo(id('D')); });
        row("entry removed", [](auto &editor) { editor.removeTodo(address('D', 'x')); });
    }

    void everyOperationIsOneStep()
    {
        QFETCH(const Operation, operation);
        edit(onePageForAll());
        editor->caretMoved(address('B'), 3);
        const QStringList before = lines(stored());

        operation(*editor);
        const QList<Block> after = stored().blocks;
        QVERIFY(lines(stored()) != before);
        editor->undo();
        QCOMPARE(lines(stored()), before);
        QCOMPARE(takeLastFocused(), u"B@3"_s);
        editor->undo();
        QCOMPARE(lines(stored()), before);
        editor->redo();
        QCOMPARE(stored().blocks, after);
    }

    void undoOfASplitRejoinsWithTheCaretWhereItWas()
    {
        edit({block('A', body, u"onetwo"_s)});
        editor->caretMoved(address('A'), 3);
        editor->typed(address('A'), u"one\ntwo"_s, 4);
        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"onetwo\""_s});
        QCOMPARE(takeLastFocused(), u"A@3"_s);
        editor->redo();
        QCOMPARE(lines(stored()), (QStringList{u"A textSmall \"one\""_s, u"+ textSmall \"two\""_s}));
        QCOMPARE(takeLastFocused(), u"+@0"_s);
    }

    void undoRestoresDeletedBlockWithFocusAndCaret()
    {
        edit({block('A'), block('B', body, u"text"_s)});
        editor->focusGained(id('B'));
        editor->caretMoved(address('B'), 2);
        editor->focusLost(id('B')); // to the menu
        editor->deleteBlock(id('B'));
        editor->undo();
        QCOMPARE(lines(stored()).last(), u"B textSmall \"text\""_s);
        QCOMPARE(takeLastFocused(), u"B@2"_s);
        QCOMPARE(editor->focusedBlockID(), id('B'));
    }

    void firstUndoOfAShortcutRestoresItsCharacters_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("heading") << QStringList{u"#"_s, u"# "_s};
        QTest::newRow("quote") << QStringList{u">"_s, u"> "_s};
        QTest::newRow("code") << QStringList{u"`"_s, u"``"_s, u"```"_s};
        QTest::newRow("divider") << QStringList{u"-"_s, u"--"_s, u"---"_s};
        QTest::newRow("checklist") << QStringList{u"["_s, u"[]"_s, u"[] "_s};
    }

    void firstUndoOfAShortcutRestoresItsCharacters()
    {
        QFETCH(const QStringList, keys);
        edit({block('A', body)});
        editor->caretMoved(address('A'), 0);
        for (const QString &value : keys)
            type('A', value);
        const QStringList converted = lines(stored());

        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"%1\""_s.arg(keys.last())});
        QCOMPARE(takeLastFocused(), u"A@%1"_s.arg(keys.last().size()));
        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"\""_s});
        QCOMPARE(takeLastFocused(), u"A@0"_s);
        editor->redo();
        editor->redo();
        QCOMPARE(lines(stored()), converted);
    }

    void caretMovesAreNeitherStoredNorUndone()
    {
        edit({block('A', BlockType::divider), block('B', body, u"text"_s)});
        const PelkoDocument before = stored();
        editor->keys()->joinBackwards({QUuid(id('B'))});
        QCOMPARE(takeLastFocused(), u"A@end"_s);
        editor->keys()->writeBelow();
        QCOMPARE(takeLastFocused(), u"B@end"_s);
        QCOMPARE(stored(), before);
        editor->undo();
        QCOMPARE(stored(), before);
    }

    void writingBelowADividerAddsABody()
    {
        edit({block('A', BlockType::divider)});
        editor->keys()->writeBelow();
        QCOMPARE(lines(stored()), (QStringList{u"A divider \"\""_s, u"+ textSmall \"\""_s}));
        QCOMPARE(takeLastFocused(), u"+@end"_s);
        editor->undo();
        QCOMPARE(lines(stored()), {u"A divider \"\""_s});
    }

    void aJoinIsTakenBackWithTheCaretAtTheStart()
    {
        edit({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        editor->caretMoved(address('B'), 0);
        editor->keys()->joinBackwards({QUuid(id('B'))});
        QCOMPARE(takeLastFocused(), u"A@3"_s);
        editor->undo();
        QCOMPARE(lines(stored()), (QStringList{u"A textSmall \"one\""_s, u"B textSmall \"two\""_s}));
        QCOMPARE(takeLastFocused(), u"B@0"_s);
    }

    void aWordIsOneStepUntilThePause()
    {
        edit({block('A', body)});
        type('A', u"o"_s);
        scheduler.advance(999ms);
        type('A', u"on"_s);
        scheduler.advance(1s);
        type('A', u"one"_s);
        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"on\""_s});
        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"\""_s});
    }

    void anOperationBetweenTwoKeysPartsThem()
    {
        edit({block('A', body), sticky('B', {todo('x')})});
        type('A', u"o"_s);
        editor->toggleTodo(address('B', 'x'));
        type('A', u"on"_s);
        editor->undo();
        editor->undo();
        QCOMPARE(lines(stored()), (QStringList{u"A textSmall \"o\""_s, u"B sticky \"\" todos(x[ ] \"\")"_s}));
    }

    void theLettersOfAnEntryAreOneStep()
    {
        edit({sticky('A', {todo('x'), todo('y')})});
        editor->caretMoved(address('A', 'x'), 0);
        editor->typed(address('A', 'x'), u"a"_s, 1);
        editor->typed(address('A', 'x'), u"ab"_s, 2);
        editor->typed(address('A', 'y'), u"c"_s, 1);
        editor->undo();
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(x[ ] \"ab\", y[ ] \"\")"_s});
        QCOMPARE(takeLastFocused(), u"A.x@2"_s);
        editor->undo();
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(x[ ] \"\", y[ ] \"\")"_s});
        QCOMPARE(takeLastFocused(), u"A.x@0"_s);
    }

    void aChangeMadeElsewhereSurvivesUndo()
    {
        edit({block('A', body), sticky('B', {todo('x')})});
        type('A', u"text"_s);
        PelkoDocument ticked = stored();
        ticked.blocks[1].todos->first().done = true;
        state->updateDocument(ticked);
        type('A', u"text."_s);
        editor->undo();
        QCOMPARE(lines(stored()),
                 (QStringList{u"A textSmall \"text\""_s, u"B sticky \"\" todos(x[x] \"\")"_s}));
    }

    void changesMadeElsewhereAreAStepEachFromTheFirstOn()
    {
        edit({block('A', body, u"text"_s)});
        editor->caretMoved(address('A'), 2);
        const PelkoDocument opened = stored();
        const auto one = TaskOperations::addQuickTask(opened, u"one"_s);
        state->updateDocument(one);
        const auto two = TaskOperations::addQuickTask(stored(), u"two"_s);
        state->updateDocument(two);

        editor->undo();
        QCOMPARE(stored().blocks, one.blocks);
        QCOMPARE(takeLastFocused(), u"A@2"_s);
        editor->undo();
        QCOMPARE(stored().blocks, opened.blocks);
        editor->undo();
        QCOMPARE(stored().blocks, opened.blocks);
        editor->redo();
        editor->redo();
        QCOMPARE(stored().blocks, two.blocks);
    }

    void aDragThatChangesNothingIsNoStep_data()
    {
        QTest::addColumn<bool>("dropped");
        QTest::newRow("dropped where it came from") << true;
        QTest::newRow("cancelled") << false;
    }

    void aDragThatChangesNothingIsNoStep()
    {
        QFETCH(const bool, dropped);
        edit({block('A', body), block('B', body), block('C', body)});
        type('A', u"text"_s);
        editor->drag()->begin(id('B'));
        editor->drag()->enter(id('C'));
        if (dropped)
            editor->drag()->enter(id('C'));
        dropped ? editor->drag()->drop() : editor->drag()->cancel();
        editor->undo();
        QCOMPARE(lines(stored()).first(), u"A textSmall \"\""_s);
    }

    void undoIsSavedLikeAnyChange()
    {
        edit({block('A', body)});
        type('A', u"text"_s);
        scheduler.advance(5s);
        QCOMPARE(state->showSavedIndicator(), false);
        editor->undo();
        scheduler.advance(500ms);
        QCOMPARE(state->showSavedIndicator(), true);
    }

    void undoOnAnotherOpenPageLeavesThatPageAlone()
    {
        edit({block('A', body)});
        type('A', u"text"_s);
        state->createDocument(Space::work);
        const PelkoDocument other = *state->openDocument();
        editor->undo();
        QCOMPARE(lines(stored()), {u"A textSmall \"\""_s});
        QCOMPARE(*state->openDocument(), other);
    }

    void changeOfAnotherPageIsNoStep()
    {
        edit({block('A', body)});
        state->createDocument(Space::work);
        PelkoDocument other = *state->openDocument();
        other.blocks = {block('Z')};
        state->updateDocument(other);
        type('Z', u"text"_s);
        QCOMPARE(lines(*state->openDocument()), {u"Z textSmall \"text\""_s});
        editor->undo();
        QCOMPARE(lines(*state->openDocument()), {u"Z textSmall \"text\""_s});
    }

    void undoAndRedoDoNothingWithoutSteps()
    {
        edit({block('A', body, u"text"_s)});
        editor->undo();
        editor->redo();
        state->permanentlyDeleteDocument(stored());
        editor->undo();
        editor->redo();
        QCOMPARE(takeLastFocused(), QString());
    }
};

PELKO_TEST(TestEditorUndo)
#include "tst_EditorUndo.moc"
