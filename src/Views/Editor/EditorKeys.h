#pragma once

#include "CaretMove.h"

#include <QKeyCombination>
#include <QKeySequence>
#include <QList>
#include <QString>

class QKeyEvent;

/// The actions of the editor's keys. Other keys are handled by the field or control that has the focus.
enum class EditorAction {
    none,
    moveCaret,
    insertText,
    newBlock,
    newLine,
    indent,
    unindent,
    focusNext,
    focusPrevious,
    deleteBackward,
    deleteForward,
    /// Deletes to the start or the end of a word or a line.
    deleteRangeBackward,
    deleteRangeForward,
    undo,
    redo,
    cut,
    copy,
    paste,
    selectAll,
    moveBlockUp,
    moveBlockDown,
    openBlockMenu,
};

/// A key binding of the editor.
struct EditorKeyBinding {
    EditorAction action = EditorAction::none;
    /// The platform's keys for it; if unknown, `combination`.
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    QKeyCombination combination = {};
    /// For `moveCaret`.
    CaretKey caret = {};
    /// The title of its line in the shortcut sheet; null for keys that are not listed.
    const char *title = nullptr;

    bool matches(const QKeyEvent &event) const;
    /// Returns the key in Qt's portable format.
    QString text() const;
};

/// All key bindings of the editor. The first match counts.
const QList<EditorKeyBinding> &editorKeyBindings();

/// The action of a key press.
struct EditorKey {
    EditorAction action = EditorAction::none;
    /// For `moveCaret`.
    CaretKey caret = {};
    /// For `insertText`.
    QString text = {};
};

EditorKey editorKey(const QKeyEvent &event);

/// Returns whether the key is a modifier, such as Shift.
bool isModifier(const QKeyEvent &event);
