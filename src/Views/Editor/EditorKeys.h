#pragma once

#include "CaretMove.h"

#include <QKeyCombination>
#include <QKeySequence>
#include <QList>
#include <QString>

class QKeyEvent;

/// What a key asks the editor to do. The field, or the control, that has the focus does what the editor
/// leaves to it.
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
    /// To the start or the end of a word or a line.
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

/// A key of the editor.
struct EditorKeyBinding {
    EditorAction action = EditorAction::none;
    /// The keys of the platform for it, or else `combination`.
    QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
    QKeyCombination combination = {};
    /// For `moveCaret`.
    CaretKey caret = {};
    /// Its line in the shortcut sheet; null for a key that needs none.
    const char *title = nullptr;

    bool matches(const QKeyEvent &event) const;
    /// In portable words.
    QString text() const;
};

/// All keys of the editor. The first that matches counts.
const QList<EditorKeyBinding> &editorKeyBindings();

/// A key press as the editor takes it.
struct EditorKey {
    EditorAction action = EditorAction::none;
    /// For `moveCaret`.
    CaretKey caret = {};
    /// For `insertText`.
    QString text = {};
};

EditorKey editorKey(const QKeyEvent &event);

/// Whether the key does nothing by itself, such as Shift.
bool isModifier(const QKeyEvent &event);
