#pragma once

#include "Models/PelkoDocument.h"

/// The changes that the tasks panel makes to a page. They take the page and return the changed one, or
/// std::nullopt if there is nothing to store.
namespace TaskOperations
{

/// Removes all entries with this id from the block. An empty checklist stays. Returns std::nullopt only for
/// an unknown block; an unknown entry still stores the page.
std::optional<PelkoDocument> deleteTodo(PelkoDocument doc, const QUuid &blockID, const QUuid &todoID);

/// Adds an unticked entry to the first checklist of the page, or to a new checklist at its end.
PelkoDocument addQuickTask(PelkoDocument doc, const QString &text);

} // namespace TaskOperations
