#pragma once

#include "Editor/Edit.h"

/// Operations on whole blocks. They take the page and return the changed one, or std::nullopt if an id is
/// unknown or the operation is not allowed.
namespace BlockOperations
{

/// Returns a new block of the kind; a checklist has one empty entry.
Block newBlock(BlockType type);

/// Returns the index of the first block with this id, or -1.
qsizetype indexOf(const PelkoDocument &document, const QUuid &blockID);

/// Returns whether the first block is a picture that is shown as the banner.
bool firstBlockIsBanner(const PelkoDocument &document);

/// Returns whether the delete button of a block is shown: not for the only block and not for a leading
/// heading.
bool canDelete(const PelkoDocument &document, qsizetype index);

/// Returns whether the context menu offers to delete blocks. Unlike `canDelete` it includes a leading
/// heading.
bool offersDelete(const PelkoDocument &document);

/// Returns the first text-like block without text.
std::optional<QUuid> firstEmptyTextBlock(const PelkoDocument &document);

/// Returns the first text-like block.
std::optional<QUuid> firstTextBlock(const PelkoDocument &document);

/// Adds a new block at the end of the page, to be scrolled to. It gets the focus if it is text-like.
Edit addBlock(PelkoDocument document, BlockType type);

/// Gives the focus to the end of the page: to the last block, or to a new body block if the last one has no
/// text.
std::optional<Edit> writeBelow(PelkoDocument document);

/// Removes the block, unless it is the only one.
std::optional<Edit> deleteBlock(PelkoDocument document, const QUuid &blockID);

/// Moves the block down by `rows`, or up if it is negative, at most to the end of the page.
std::optional<Edit> moveBlock(PelkoDocument document, const QUuid &blockID, int rows);

/// Turns a picture into the banner at the top of the page, or back. A banner replaces a blank leading
/// heading; when it is turned back, the page gets a heading again. A new banner gets the focus.
std::optional<Edit> toggleFullWidth(PelkoDocument document, const QUuid &blockID);

} // namespace BlockOperations
