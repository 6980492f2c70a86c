#pragma once

#include "Models/PelkoDocument.h"

class AppState;

enum class DropOperation { copy, move };

/// The operation that a drop would perform, for the shape of the pointer.
struct DropProposal {
    DropOperation operation;

    bool operator==(const DropProposal &) const = default;
};

/// The drop target for one row of the page. Blocks are reordered within the open document only; unknown
/// blocks change nothing. A value for a single event of a drag.
struct BlockDropDelegate {
    /// The block of this row.
    Block targetBlock;
    /// The page as it was shown; the present order of its blocks is read from the store.
    PelkoDocument document;
    AppState &appState;
    /// The dragged block, owned by the editor; std::nullopt if there is no drag.
    std::optional<QUuid> &draggingBlockID;

    /// The pointer entered this row: moves the dragged block to it, without saving. A block that moves down
    /// comes to lie below the row, one that moves up above it.
    void dropEntered() const;
    DropProposal dropUpdated() const;
    /// Stores the order that the moves have produced. Always returns true.
    bool performDrop() const;
};
