#pragma once

#include "Editor/Edit.h"

/// Operations on the entries of a checklist. They take the page and return the changed one, or std::nullopt
/// if the block or the entry is unknown.
namespace TodoOperations
{

/// Stores the text of an entry; `caret` is the position of the caret in `text`. If the text contains a first
/// line feed, each further line becomes an entry below.
std::optional<Edit> setText(PelkoDocument document, const TextAddress &entry, const QString &text, int caret);
std::optional<Edit> toggle(PelkoDocument document, const TextAddress &entry);

/// Adds an empty entry at the end and gives it the focus.
std::optional<Edit> append(PelkoDocument document, const QUuid &blockID);

/// Removes the entry. If the caret was in it, or is unknown, it goes to the entry above, or otherwise to the
/// next one; a caret elsewhere stays.
std::optional<Edit> remove(PelkoDocument document, const TextAddress &entry,
                           const std::optional<FocusTarget> &caret = std::nullopt);

} // namespace TodoOperations
