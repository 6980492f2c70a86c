#pragma once

/// The movements of a caret.
enum class CaretMove {
    left,
    right,
    wordLeft,
    wordRight,
    lineStart,
    lineEnd,
    up,
    down,
    pageUp,
    pageDown,
    start,
    end,
};

/// Returns whether the move leads towards the end of the text. Left and right are exchanged in right-to-left
/// text.
bool isForward(CaretMove move, bool readsFromRight);

/// Returns whether the move keeps its column.
bool isVertical(CaretMove move);

/// A key that moves the caret.
struct CaretKey {
    CaretMove move = CaretMove::left;
    /// Whether the selection is extended.
    bool extends = false;
};
