#pragma once

#include "Editor/Edit.h"

/// The operations on the entries of a checklist: a page in, the changed page out, or nothing where the
/// block or the entry is unknown.
namespace TodoOperations
{

std::optional<Edit> setText(PelkoDocument document, const QUuid &blockID, const QUuid &todoID,
                            const QString &text);
std::optional<Edit> toggle(PelkoDocument document, const QUuid &blockID, const QUuid &todoID);

/// Splits the entry at `caret`: what follows it becomes a new entry below, which gets the focus.
std::optional<Edit> split(PelkoDocument document, const QUuid &blockID, const QUuid &todoID, int caret);

/// Adds an empty entry at the end, which gets the focus.
std::optional<Edit> append(PelkoDocument document, const QUuid &blockID);

/// Removes the entry; the focus goes to the one above, else to the one that takes its place.
std::optional<Edit> remove(PelkoDocument document, const QUuid &blockID, const QUuid &todoID);

} // namespace TodoOperations
