#include "Editor/BlockDropDelegate.h"

#include "Editor/BlockOperations.h"
#include "Store/AppState.h"

void BlockDropDelegate::dropEntered() const
{
    if (!draggingBlockID || *draggingBlockID == targetBlock.id)
        return;
    const std::optional<PelkoDocument> page = appState.openDocument();
    if (!page)
        return;
    const qsizetype from = BlockOperations::indexOf(*page, *draggingBlockID);
    const qsizetype to = BlockOperations::indexOf(*page, targetBlock.id);
    // After removal, the target moves up if the block comes from above, and down if it comes from below.
    if (from >= 0 && to >= 0)
        appState.moveBlock(page->id, from, to);
}

DropProposal BlockDropDelegate::dropUpdated() const
{
    return {.operation = DropOperation::move};
}

bool BlockDropDelegate::performDrop() const
{
    draggingBlockID.reset();
    if (const std::optional<PelkoDocument> page = appState.openDocument())
        appState.updateDocument(*page);
    return true;
}
