#include "Views/Editor/EditorKeys.h"
#include "Views/Editor/EditorShortcuts.h"
#include "support/TestProgram.h"

#include "Shell/MenuCommands.h"

#include <QKeyEvent>
#include <QSet>

using namespace Qt::StringLiterals;

namespace
{

EditorKey pressed(QKeyCombination keys, const QString &text = {})
{
    return editorKey(QKeyEvent(QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), text));
}

} // namespace

class TestEditorKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyHasItsAction_data()
    {
        QTest::addColumn<QKeyCombination>("keys");
        QTest::addColumn<EditorAction>("action");
        const auto row = [](QKeyCombination keys, EditorAction action) {
            QTest::addRow("%s", qPrintable(QKeySequence(keys).toString())) << keys << action;
        };
        row(Qt::Key_Return, EditorAction::newBlock);
        row(Qt::Key_Enter, EditorAction::newBlock);
        row(Qt::KeypadModifier | Qt::Key_Enter, EditorAction::newBlock);
        row(Qt::SHIFT | Qt::Key_Return, EditorAction::newLine);
        row(Qt::SHIFT | Qt::Key_Enter, EditorAction::newLine);
        row(Qt::Key_Tab, EditorAction::indent);
        row(Qt::SHIFT | Qt::Key_Backtab, EditorAction::unindent);
        row(Qt::CTRL | Qt::Key_Tab, EditorAction::focusNext);
        row(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, EditorAction::focusPrevious);
        row(Qt::Key_Backspace, EditorAction::deleteBackward);
        row(Qt::SHIFT | Qt::Key_Backspace, EditorAction::deleteBackward);
        row(Qt::CTRL | Qt::Key_Backspace, EditorAction::deleteRangeBackward);
        row(Qt::Key_Delete, EditorAction::deleteForward);
        row(Qt::KeypadModifier | Qt::Key_Delete, EditorAction::deleteForward);
        row(Qt::CTRL | Qt::Key_Delete, EditorAction::deleteRangeForward);
        row(Qt::CTRL | Qt::Key_Z, EditorAction::undo);
        row(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, EditorAction::redo);
        row(Qt::CTRL | Qt::Key_Y, EditorAction::redo);
        row(Qt::CTRL | Qt::Key_X, EditorAction::cut);
        row(Qt::SHIFT | Qt::Key_Delete, EditorAction::cut);
        row(Qt::CTRL | Qt::Key_C, EditorAction::copy);
        row(Qt::CTRL | Qt::Key_V, EditorAction::paste);
        row(Qt::SHIFT | Qt::Key_Insert, EditorAction::paste);
        row(Qt::CTRL | Qt::Key_A, EditorAction::selectAll);
        row(Qt::ALT | Qt::Key_Up, EditorAction::moveBlockUp);
        row(Qt::AltModifier | Qt::KeypadModifier | Qt::Key_Down, EditorAction::moveBlockDown);
        row(Qt::SHIFT | Qt::Key_F10, EditorAction::openBlockMenu);
        row(Qt::Key_Menu, EditorAction::openBlockMenu);
        row(Qt::Key_Escape, EditorAction::none);
        row(Qt::Key_F10, EditorAction::none);
        row(Qt::CTRL | Qt::Key_Return, EditorAction::none);
    }

    void eachKeyHasItsAction()
    {
        QFETCH(QKeyCombination, keys);
        QFETCH(EditorAction, action);

        QCOMPARE(pressed(keys).action, action);
    }

    void theCaretGoesWhereItsKeysLead_data()
    {
        QTest::addColumn<QKeyCombination>("keys");
        QTest::addColumn<CaretMove>("move");
        QTest::newRow("left") << QKeyCombination(Qt::Key_Left) << CaretMove::left;
        QTest::newRow("right") << QKeyCombination(Qt::Key_Right) << CaretMove::right;
        QTest::newRow("word left") << (Qt::CTRL | Qt::Key_Left) << CaretMove::wordLeft;
        QTest::newRow("word right") << (Qt::CTRL | Qt::Key_Right) << CaretMove::wordRight;
        QTest::newRow("start of line") << QKeyCombination(Qt::Key_Home) << CaretMove::lineStart;
        QTest::newRow("end of line") << QKeyCombination(Qt::Key_End) << CaretMove::lineEnd;
        QTest::newRow("up") << QKeyCombination(Qt::Key_Up) << CaretMove::up;
        QTest::newRow("down") << QKeyCombination(Qt::Key_Down) << CaretMove::down;
        QTest::newRow("page up") << QKeyCombination(Qt::Key_PageUp) << CaretMove::pageUp;
        QTest::newRow("page down") << QKeyCombination(Qt::Key_PageDown) << CaretMove::pageDown;
        QTest::newRow("start") << (Qt::CTRL | Qt::Key_Home) << CaretMove::start;
        QTest::newRow("end") << (Qt::CTRL | Qt::Key_End) << CaretMove::end;
    }

    void theCaretGoesWhereItsKeysLead()
    {
        QFETCH(QKeyCombination, keys);
        QFETCH(CaretMove, move);

        const EditorKey moves = pressed(keys);
        const EditorKey selects = pressed(keys.keyboardModifiers() | Qt::ShiftModifier | keys.key());

        QCOMPARE(moves.action, EditorAction::moveCaret);
        QCOMPARE(moves.caret.move, move);
        QVERIFY(!moves.caret.extends);
        QCOMPARE(selects.action, EditorAction::moveCaret);
        QCOMPARE(selects.caret.move, move);
        QVERIFY(selects.caret.extends);
    }

    void typedCharactersAreText()
    {
        QCOMPARE(pressed(Qt::Key_A, u"a"_s).text, u"a"_s);
        QCOMPARE(pressed(Qt::SHIFT | Qt::Key_A, u"A"_s).action, EditorAction::insertText);
        QCOMPARE(pressed(Qt::Key_Space, u" "_s).action, EditorAction::insertText);
        QCOMPARE(pressed(Qt::Key_unknown, u"😀"_s).text, u"😀"_s);
        QCOMPARE(pressed(Qt::CTRL | Qt::Key_B, u"b"_s).action, EditorAction::none);
        QCOMPARE(pressed(Qt::Key_Escape, u"\u001b"_s).action, EditorAction::none);
    }

    void theSheetListsEveryTitleOnce()
    {
        QSet<QString> titles;
        for (const EditorKeyBinding &binding : editorKeyBindings()) {
            if (!binding.title)
                continue;
            const QString title = QString::fromUtf8(binding.title);
            QVERIFY2(!titles.contains(title), binding.title);
            titles.insert(title);
        }
        for (const ShortcutLine &line : EditorShortcuts::lines())
            titles.remove(line.title);

        QVERIFY(titles.isEmpty());
    }

    void theSheetShowsTheKeyThatDoesIt()
    {
        const QList<ShortcutLine> lines = EditorShortcuts::lines();

        QVERIFY(lines.contains(ShortcutLine{u"New block"_s, {u"Return"_s}}));
        QVERIFY(lines.contains(ShortcutLine{u"Move block up"_s, {u"Alt"_s, u"↑"_s}}));
        QVERIFY(lines.contains(ShortcutLine{u"Leave code"_s, {u"Ctrl"_s, u"Tab"_s}}));
        QVERIFY(lines.contains(ShortcutLine{u"Undo"_s, {u"Ctrl"_s, u"Z"_s}}));
    }

    void anEditingCommandHasTheKeyOfItsAction_data()
    {
        QTest::addColumn<EditorAction>("action");
        QTest::newRow("undo") << EditorAction::undo;
        QTest::newRow("redo") << EditorAction::redo;
        QTest::newRow("cut") << EditorAction::cut;
        QTest::newRow("copy") << EditorAction::copy;
        QTest::newRow("paste") << EditorAction::paste;
        QTest::newRow("selectAll") << EditorAction::selectAll;
    }

    void anEditingCommandHasTheKeyOfItsAction()
    {
        QFETCH(EditorAction, action);
        const QString id = QString::fromUtf8(QTest::currentDataTag());
        const auto command = std::ranges::find(MenuCommand::all(), id, &MenuCommand::id);
        QVERIFY(command != MenuCommand::all().end());

        for (const QString &keys : {command->shortcut, command->otherShortcut}) {
            if (!keys.isEmpty())
                QCOMPARE(pressed(QKeySequence(keys, QKeySequence::PortableText)[0]).action, action);
        }
    }

    void noCommandTakesAKeyOfTheSheet()
    {
        for (const EditorKeyBinding &binding : editorKeyBindings()) {
            for (const MenuCommand &command : MenuCommand::all())
                QVERIFY2(!binding.title || binding.text() != command.shortcut, binding.title);
        }
    }
};

PELKO_TEST(TestEditorKeys)
#include "tst_EditorKeys.moc"
