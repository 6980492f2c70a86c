#pragma once

#include "Editor/Edit.h"

/// The operations on whole blocks: a page in, the changed page out. Nothing is returned when there is
/// nothing to do, because an id is unknown or a rule forbids it.
namespace BlockOperations
{

/// A fresh block of that kind; a checklist starts with one empty entry.
Block newBlock(BlockType type);

/// Where the first block of that id stands, or -1.
qsizetype indexOf(const PelkoDocument &document, const QUuid &blockID);

/// Whether the page opens with a picture that is shown as its banner.
bool firstBlockIsBanner(const PelkoDocument &document);

/// Whether a block's own delete button is shown: never for the last block nor for a leading heading.
bool canDelete(const PelkoDocument &document, qsizetype index);

/// Whether the context menu offers to delete: looser than `canDelete`, a leading heading may go.
bool offersDelete(const PelkoDocument &document);

/// The first text-like block without text, or nothing.
std::optional<QUuid> firstEmptyTextBlock(const PelkoDocument &document);

/// The first text-like block, or nothing.
std::optional<QUuid> firstTextBlock(const PelkoDocument &document);

/// New blocks always go last and are scrolled to. The focus names the new block when it is text-like.
Edit addBlock(PelkoDocument document, BlockType type);

/// Goes on at the end of the page: in its last block, or in a new body block when that is none to write in.
std::optional<Edit> writeBelow(PelkoDocument document);

/// Removes the block, unless it is the only one.
std::optional<Edit> deleteBlock(PelkoDocument document, const QUuid &blockID);

/// Moves the block so many rows down, or up when `rows` is negative. It stays where the page ends.
std::optional<Edit> moveBlock(PelkoDocument document, const QUuid &blockID, int rows);

/// Turns a picture into the banner at the top of the page, and back. A banner takes the place of a blank
/// leading heading; without one the page gets its heading back. The focus names a new banner.
std::optional<Edit> toggleFullWidth(PelkoDocument document, const QUuid &blockID);

} // namespace BlockOperations
