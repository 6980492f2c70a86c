#pragma once

#include "Models/PelkoDocument.h"

class AppState;

enum class DropOperation { copy, move };

/// What letting go here would do, for the pointer to show.
struct DropProposal {
    DropOperation operation;

    bool operator==(const DropProposal &) const = default;
};

/// What one row of the page does while a block is dragged over it, and when it is let go there. Blocks are
/// reordered within the open document only; whatever cannot be found makes a step do nothing. A value that
/// lives as long as one step of a drag.
struct BlockDropDelegate {
    /// The block of the row.
    Block targetBlock;
    /// The page as it was shown; where its blocks stand now is read from the store.
    PelkoDocument document;
    AppState &appState;
    /// The editor's note of what is dragged; nothing while no drag is under way.
    std::optional<QUuid> &draggingBlockID;

    /// The pointer came to this row: the dragged block takes its place, in memory only. Going down it lands
    /// below the row, going up above it.
    void dropEntered() const;
    DropProposal dropUpdated() const;
    /// The order that the steps before reached is stored. Always true.
    bool performDrop() const;
};
