#pragma once

/// The ways a caret can go.
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

/// Whether the move leads towards the end of a text. What is left and right is the other way round in scripts
/// that are read from right to left.
bool isForward(CaretMove move, bool readsFromRight);

/// Whether the move keeps to its column.
bool isVertical(CaretMove move);

/// What a key does to the caret.
struct CaretKey {
    CaretMove move = CaretMove::left;
    /// The selection goes along.
    bool extends = false;
};
