#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

/// The operations on what is selected. Nothing is returned where an end of the selection is not on the page.
namespace SelectionOperations
{

/// Removes what is selected and joins what is left of the passages at its ends, the first of which keeps its
/// kind. The caret stays at the seam; where neither end leaves a text, in a new body block.
std::optional<Edit> remove(PelkoDocument document, const BlockSelection &selection);

/// The same, and then `text` is typed at the seam. In the title of a banner its line breaks become spaces.
std::optional<Edit> replace(PelkoDocument document, const BlockSelection &selection, const QString &text);

/// The same, and then a new image block follows the one with the seam.
std::optional<Edit> replaceByPicture(PelkoDocument document, const BlockSelection &selection,
                                     const QByteArray &bytes);

/// Return and Shift+Return: removes what is selected and makes a line at the seam; see LineOperations.
std::optional<Edit> split(PelkoDocument document, const BlockSelection &selection);
std::optional<Edit> breakLine(PelkoDocument document, const BlockSelection &selection);

} // namespace SelectionOperations
