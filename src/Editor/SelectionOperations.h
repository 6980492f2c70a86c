#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

/// Operations on the selection. They return std::nullopt if an end of the selection is not on the page.
namespace SelectionOperations
{

/// Removes the selection and joins the remaining texts at its ends; the result has the kind of the first one.
/// The caret stays where they meet, or goes to a new body block if no text remains.
std::optional<Edit> remove(PelkoDocument document, const BlockSelection &selection);

/// Removes the selection and inserts `text`. In the title of a banner its line breaks become spaces.
std::optional<Edit> replace(PelkoDocument document, const BlockSelection &selection, const QString &text);

/// Removes the selection and adds an image block after the block with the caret.
std::optional<Edit> replaceByPicture(PelkoDocument document, const BlockSelection &selection,
                                     const QByteArray &bytes);

/// Return and Shift+Return: removes the selection and breaks the text at its place; see LineOperations.
std::optional<Edit> split(PelkoDocument document, const BlockSelection &selection);
std::optional<Edit> breakLine(PelkoDocument document, const BlockSelection &selection);

} // namespace SelectionOperations
