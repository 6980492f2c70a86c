#include "EditorKeys.h"

#include "KeyText.h"

#include <QKeyEvent>

#include <algorithm>

namespace
{

using Action = EditorAction;
using Standard = QKeySequence::StandardKey;

EditorKeyBinding standard(Standard key, Action action)
{
    return {.action = action, .standard = key};
}

EditorKeyBinding combination(QKeyCombination key, Action action, const char *title = nullptr)
{
    return {.action = action, .combination = key, .title = title};
}

QList<EditorKeyBinding> caretKeys(CaretMove move, Standard moves, Standard selects)
{
    return {{.action = Action::moveCaret, .standard = moves, .caret = {.move = move, .extends = false}},
            {.action = Action::moveCaret, .standard = selects, .caret = {.move = move, .extends = true}}};
}

QList<EditorKeyBinding> allCaretKeys()
{
    return caretKeys(CaretMove::left, Standard::MoveToPreviousChar, Standard::SelectPreviousChar) +
           caretKeys(CaretMove::right, Standard::MoveToNextChar, Standard::SelectNextChar) +
           caretKeys(CaretMove::wordLeft, Standard::MoveToPreviousWord, Standard::SelectPreviousWord) +
           caretKeys(CaretMove::wordRight, Standard::MoveToNextWord, Standard::SelectNextWord) +
           caretKeys(CaretMove::lineStart, Standard::MoveToStartOfLine, Standard::SelectStartOfLine) +
           caretKeys(CaretMove::lineEnd, Standard::MoveToEndOfLine, Standard::SelectEndOfLine) +
           caretKeys(CaretMove::up, Standard::MoveToPreviousLine, Standard::SelectPreviousLine) +
           caretKeys(CaretMove::down, Standard::MoveToNextLine, Standard::SelectNextLine) +
           caretKeys(CaretMove::pageUp, Standard::MoveToPreviousPage, Standard::SelectPreviousPage) +
           caretKeys(CaretMove::pageDown, Standard::MoveToNextPage, Standard::SelectNextPage) +
           caretKeys(CaretMove::start, Standard::MoveToStartOfDocument, Standard::SelectStartOfDocument) +
           caretKeys(CaretMove::end, Standard::MoveToEndOfDocument, Standard::SelectEndOfDocument);
}

/// Keys that the program also offers as commands, which send the key; see EditingKeys.
QList<EditorKeyBinding> commandKeys()
{
    return {
        standard(Standard::Undo, Action::undo),
        standard(Standard::Redo, Action::redo),
        combination(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Action::redo),
        combination(Qt::CTRL | Qt::Key_Y, Action::redo),
        standard(Standard::Cut, Action::cut),
        standard(Standard::Copy, Action::copy),
        standard(Standard::Paste, Action::paste),
        standard(Standard::SelectAll, Action::selectAll),
    };
}

QList<EditorKeyBinding> deletingKeys()
{
    return {
        combination(Qt::Key_Backspace, Action::deleteBackward,
                    QT_TRANSLATE_NOOP("EditorKeys", "Join with the block above")),
        combination(Qt::SHIFT | Qt::Key_Backspace, Action::deleteBackward),
        standard(Standard::Backspace, Action::deleteBackward),
        standard(Standard::Delete, Action::deleteForward),
        standard(Standard::DeleteStartOfWord, Action::deleteRangeBackward),
        standard(Standard::DeleteEndOfWord, Action::deleteRangeForward),
        standard(Standard::DeleteEndOfLine, Action::deleteRangeForward),
        standard(Standard::DeleteCompleteLine, Action::deleteRangeForward),
    };
}

QList<EditorKeyBinding> writingKeys()
{
    return {
        combination(Qt::Key_Return, Action::newBlock, QT_TRANSLATE_NOOP("EditorKeys", "New block")),
        combination(Qt::Key_Enter, Action::newBlock),
        combination(Qt::SHIFT | Qt::Key_Return, Action::newLine,
                    QT_TRANSLATE_NOOP("EditorKeys", "New line in a block")),
        combination(Qt::SHIFT | Qt::Key_Enter, Action::newLine),
        combination(Qt::Key_Tab, Action::indent),
        combination(Qt::Key_Backtab, Action::unindent),
        combination(Qt::SHIFT | Qt::Key_Backtab, Action::unindent),
        combination(Qt::SHIFT | Qt::Key_Tab, Action::unindent),
    };
}

QList<EditorKeyBinding> blockKeys()
{
    return {
        combination(Qt::ALT | Qt::Key_Up, Action::moveBlockUp,
                    QT_TRANSLATE_NOOP("EditorKeys", "Move block up")),
        combination(Qt::ALT | Qt::Key_Down, Action::moveBlockDown,
                    QT_TRANSLATE_NOOP("EditorKeys", "Move block down")),
        combination(Qt::SHIFT | Qt::Key_F10, Action::openBlockMenu,
                    QT_TRANSLATE_NOOP("EditorKeys", "Menu of the block")),
        combination(Qt::Key_Menu, Action::openBlockMenu),
        combination(Qt::CTRL | Qt::Key_Tab, Action::focusNext, QT_TRANSLATE_NOOP("EditorKeys", "Leave code")),
        combination(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Action::focusPrevious),
        combination(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Action::focusPrevious),
    };
}

} // namespace

bool EditorKeyBinding::matches(const QKeyEvent &event) const
{
    if (standard != QKeySequence::UnknownKey)
        return event.matches(standard);
    const Qt::KeyboardModifiers modifiers =
        event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    return QKeyCombination(modifiers, Qt::Key(event.key())) == combination;
}

QString EditorKeyBinding::text() const
{
    const QKeySequence keys =
        standard == QKeySequence::UnknownKey ? QKeySequence(combination) : QKeySequence(standard);
    return keys.toString(QKeySequence::PortableText);
}

const QList<EditorKeyBinding> &editorKeyBindings()
{
    static const QList<EditorKeyBinding> bindings =
        writingKeys() + deletingKeys() + commandKeys() + blockKeys() + allCaretKeys();
    return bindings;
}

EditorKey editorKey(const QKeyEvent &event)
{
    for (const EditorKeyBinding &binding : editorKeyBindings()) {
        if (binding.matches(event))
            return {.action = binding.action, .caret = binding.caret};
    }
    return writesText(event) ? EditorKey{.action = Action::insertText, .text = event.text()} : EditorKey();
}

bool isModifier(const QKeyEvent &event)
{
    const int key = event.key();
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           key == Qt::Key_Super_L || key == Qt::Key_Super_R;
}
