#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

/// The operations on what is selected. Nothing is returned where an end of the selection is not on the page.
namespace SelectionOperations
{

/// Removes what is selected and joins what is left of the passages at its ends, the first of which keeps its
/// kind. The caret stays at the seam; where neither end leaves a text, in a new body block.
std::optional<Edit> remove(PelkoDocument document, const BlockSelection &selection);

/// The same, and then `text` is typed at the seam.
std::optional<Edit> replace(PelkoDocument document, const BlockSelection &selection, const QString &text);

} // namespace SelectionOperations
