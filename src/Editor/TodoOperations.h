#pragma once

#include "Editor/Edit.h"

/// The operations on the entries of a checklist: a page in, the changed page out, or nothing where the
/// block or the entry is unknown.
namespace TodoOperations
{

/// Stores what the entry's field reports, `caret` being where the caret stood in `text`. A line feed in a
/// text that had none breaks it up: each further line becomes an entry of its own below.
std::optional<Edit> setText(PelkoDocument document, const TextAddress &entry, const QString &text, int caret);
std::optional<Edit> toggle(PelkoDocument document, const TextAddress &entry);

/// Adds an empty entry at the end, which gets the focus.
std::optional<Edit> append(PelkoDocument document, const QUuid &blockID);

/// Removes the entry. A caret in it, or an unknown one, goes to the entry above, else to the one that takes
/// its place; elsewhere it stays.
std::optional<Edit> remove(PelkoDocument document, const TextAddress &entry,
                           const std::optional<FocusTarget> &caret = std::nullopt);

} // namespace TodoOperations
