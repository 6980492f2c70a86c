#include "support/EditorDesk.h"
#include "support/TestProgram.h"

#include <functional>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using Operation = std::function<void(EditorDesk &)>;

/// A page that has something for every operation.
QList<Block> onePageForAll()
{
    return {block('A', heading, u"Title"_s), block('B', body, u"onetwo"_s), image('C'),
            sticky('D', {todo('x', u"milk"_s), todo('y', u"eggs"_s)}), block('E')};
}

} // namespace

Q_DECLARE_METATYPE(Operation)

class TestEditorUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOperationIsOneStep_data()
    {
        QTest::addColumn<Operation>("operation");
        const auto row = [](const char *name, const std::function<void(EditorViewModel &)> &operation) {
            QTest::newRow(name) << Operation([operation](EditorDesk &desk) { operation(*desk.editor); });
        };
        row("key", [](auto &editor) { editor.typed(id('B'), u"onextwo"_s, 4); });
        row("split", [](auto &editor) { editor.typed(id('B'), u"one\ntwo"_s, 4); });
        row("join", [](auto &editor) { editor.keys()->joinBackwards(id('B'), {}); });
        row("join of an entry", [](auto &editor) { editor.keys()->joinBackwards(id('D'), id('y')); });
        row("join from below", [](auto &editor) { editor.keys()->joinForwards(id('A'), {}); });
        row("a picture by key", [](auto &editor) { editor.keys()->remove(id('C'), true); });
        row("line break", [](auto &editor) { editor.keys()->breakLine(id('B'), {}, 3, 3); });
        row("line", [](auto &editor) { editor.keys()->split(id('B'), {}, 3, 3); });
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
        row("entry", [](auto &editor) { editor.typedTodo(id('D'), id('x'), u"milks"_s, 5); });
        row("entry split", [](auto &editor) { editor.typedTodo(id('D'), id('x'), u"mi\nlk"_s, 3); });
        row("tick", [](auto &editor) { editor.toggleTodo(id('D'), id('y')); });
        row("entry added", [](auto &editor) { editor.appendTodo(id('D')); });
        row("entry removed", [](auto &editor) { editor.removeTodo(id('D'), id('x')); });
    }

    void everyOperationIsOneStep()
    {
        QFETCH(const Operation, operation);
        EditorDesk desk(onePageForAll());
        desk.editor->caretMoved(id('B'), {}, 3);
        const QStringList before = desk.lines();

        operation(desk);
        const QList<Block> after = desk.page().blocks;
        QVERIFY(desk.lines() != before);
        desk.editor->undo();
        QCOMPARE(desk.lines(), before);
        QCOMPARE(desk.takeFocused(), u"B@3"_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), before);
        desk.editor->redo();
        QCOMPARE(desk.page().blocks, after);
    }

    void undoOfASplitRejoinsWithTheCaretWhereItWas()
    {
        EditorDesk desk({block('A', body, u"onetwo"_s)});
        desk.editor->caretMoved(id('A'), {}, 3);
        desk.editor->typed(id('A'), u"one\ntwo"_s, 4);
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"onetwo\""_s});
        QCOMPARE(desk.takeFocused(), u"A@3"_s);
        desk.editor->redo();
        QCOMPARE(desk.lines(), (QStringList{u"A textSmall \"one\""_s, u"+ textSmall \"two\""_s}));
        QCOMPARE(desk.takeFocused(), u"+@0"_s);
    }

    void aDeletedBlockComesBackWithFocusAndCaret()
    {
        EditorDesk desk({block('A'), block('B', body, u"text"_s)});
        desk.editor->focusGained(id('B'));
        desk.editor->caretMoved(id('B'), {}, 2);
        desk.editor->focusLost(id('B')); // to the menu
        desk.editor->deleteBlock(id('B'));
        desk.editor->undo();
        QCOMPARE(desk.lines().last(), u"B textSmall \"text\""_s);
        QCOMPARE(desk.takeFocused(), u"B@2"_s);
        QCOMPARE(desk.editor->focusedBlockID(), id('B'));
    }

    void aTypedShortcutFirstGivesBackItsCharacters_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("heading") << QStringList{u"#"_s, u"# "_s};
        QTest::newRow("quote") << QStringList{u">"_s, u"> "_s};
        QTest::newRow("code") << QStringList{u"`"_s, u"``"_s, u"```"_s};
        QTest::newRow("divider") << QStringList{u"-"_s, u"--"_s, u"---"_s};
        QTest::newRow("checklist") << QStringList{u"["_s, u"[]"_s, u"[] "_s};
    }

    void aTypedShortcutFirstGivesBackItsCharacters()
    {
        QFETCH(const QStringList, keys);
        EditorDesk desk({block('A', body)});
        desk.editor->caretMoved(id('A'), {}, 0);
        for (const QString &value : keys)
            desk.type('A', value);
        const QStringList converted = desk.lines();

        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"%1\""_s.arg(keys.last())});
        QCOMPARE(desk.takeFocused(), u"A@%1"_s.arg(keys.last().size()));
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"\""_s});
        QCOMPARE(desk.takeFocused(), u"A@0"_s);
        desk.editor->redo();
        desk.editor->redo();
        QCOMPARE(desk.lines(), converted);
    }

    void stepsOfTheCaretAreNeitherStoredNorTakenBack()
    {
        EditorDesk desk({block('A', BlockType::divider), block('B', body, u"text"_s)});
        const PelkoDocument before = desk.page();
        desk.editor->keys()->joinBackwards(id('B'), {});
        QCOMPARE(desk.takeFocused(), u"A@end"_s);
        desk.editor->keys()->writeBelow();
        QCOMPARE(desk.takeFocused(), u"B@end"_s);
        QCOMPARE(desk.page(), before);
        desk.editor->undo();
        QCOMPARE(desk.page(), before);
    }

    void writingBelowADividerAddsABody()
    {
        EditorDesk desk({block('A', BlockType::divider)});
        desk.editor->keys()->writeBelow();
        QCOMPARE(desk.lines(), (QStringList{u"A divider \"\""_s, u"+ textSmall \"\""_s}));
        QCOMPARE(desk.takeFocused(), u"+@end"_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A divider \"\""_s});
    }

    void aJoinIsTakenBackWithTheCaretAtTheStart()
    {
        EditorDesk desk({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        desk.editor->caretMoved(id('B'), {}, 0);
        desk.editor->keys()->joinBackwards(id('B'), {});
        QCOMPARE(desk.takeFocused(), u"A@3"_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), (QStringList{u"A textSmall \"one\""_s, u"B textSmall \"two\""_s}));
        QCOMPARE(desk.takeFocused(), u"B@0"_s);
    }

    void aWordIsOneStepUntilThePause()
    {
        EditorDesk desk({block('A', body)});
        desk.type('A', u"o"_s);
        desk.scheduler.advance(999ms);
        desk.type('A', u"on"_s);
        desk.scheduler.advance(1s);
        desk.type('A', u"one"_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"on\""_s});
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"\""_s});
    }

    void anOperationBetweenTwoKeysPartsThem()
    {
        EditorDesk desk({block('A', body), sticky('B', {todo('x')})});
        desk.type('A', u"o"_s);
        desk.editor->toggleTodo(id('B'), id('x'));
        desk.type('A', u"on"_s);
        desk.editor->undo();
        desk.editor->undo();
        QCOMPARE(desk.lines(), (QStringList{u"A textSmall \"o\""_s, u"B sticky \"\" todos(x[ ] \"\")"_s}));
    }

    void theLettersOfAnEntryAreOneStep()
    {
        EditorDesk desk({sticky('A', {todo('x'), todo('y')})});
        desk.editor->caretMoved(id('A'), id('x'), 0);
        desk.editor->typedTodo(id('A'), id('x'), u"a"_s, 1);
        desk.editor->typedTodo(id('A'), id('x'), u"ab"_s, 2);
        desk.editor->typedTodo(id('A'), id('y'), u"c"_s, 1);
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A sticky \"\" todos(x[ ] \"ab\", y[ ] \"\")"_s});
        QCOMPARE(desk.takeFocused(), u"A.x@2"_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A sticky \"\" todos(x[ ] \"\", y[ ] \"\")"_s});
        QCOMPARE(desk.takeFocused(), u"A.x@0"_s);
    }

    void aChangeMadeElsewhereSurvivesUndo()
    {
        EditorDesk desk({block('A', body), sticky('B', {todo('x')})});
        desk.type('A', u"text"_s);
        PelkoDocument ticked = desk.page();
        ticked.blocks[1].todos->first().done = true;
        desk.state().updateDocument(ticked);
        desk.type('A', u"text."_s);
        desk.editor->undo();
        QCOMPARE(desk.lines(), (QStringList{u"A textSmall \"text\""_s, u"B sticky \"\" todos(x[x] \"\")"_s}));
    }

    void undoIsSavedLikeAnyChange()
    {
        EditorDesk desk({block('A', body)});
        desk.type('A', u"text"_s);
        desk.scheduler.advance(5s);
        QCOMPARE(desk.state().showSavedIndicator(), false);
        desk.editor->undo();
        desk.scheduler.advance(500ms);
        QCOMPARE(desk.state().showSavedIndicator(), true);
    }

    void undoOnAnotherOpenPageLeavesThatPageAlone()
    {
        EditorDesk desk({block('A', body)});
        desk.type('A', u"text"_s);
        desk.state().createDocument(Space::work);
        const PelkoDocument other = *desk.state().openDocument();
        desk.editor->undo();
        QCOMPARE(desk.lines(), {u"A textSmall \"\""_s});
        QCOMPARE(*desk.state().openDocument(), other);
    }

    void whatReachesAnotherPageIsNoStepOfThisOne()
    {
        EditorDesk desk({block('A', body)});
        desk.state().createDocument(Space::work);
        PelkoDocument other = *desk.state().openDocument();
        other.blocks = {block('Z')};
        desk.state().updateDocument(other);
        desk.type('Z', u"text"_s);
        QCOMPARE(lines(*desk.state().openDocument()), {u"Z textSmall \"text\""_s});
        desk.editor->undo();
        QCOMPARE(lines(*desk.state().openDocument()), {u"Z textSmall \"text\""_s});
    }

    void withNothingDoneUndoAndRedoDoNothing()
    {
        EditorDesk desk({block('A', body, u"text"_s)});
        desk.editor->undo();
        desk.editor->redo();
        desk.state().permanentlyDeleteDocument(desk.page());
        desk.editor->undo();
        desk.editor->redo();
        QCOMPARE(desk.takeFocused(), QString());
    }
};

PELKO_TEST(TestEditorUndo)
#include "tst_EditorUndo.moc"
