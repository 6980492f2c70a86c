#pragma once

#include <QString>

class QKeyEvent;

/// What a key does to a selection that goes beyond one text.
struct SelectionKey {
    enum class Action { none, copy, cut, paste, selectAll, remove, split, breakLine, type, leave };

    Action action = Action::none;
    /// What is typed over the selection.
    QString text = {};
};

SelectionKey selectionKey(const QKeyEvent &event);
