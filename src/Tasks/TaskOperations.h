#pragma once

#include "Models/PelkoDocument.h"

/// What the tasks panel does to a page: the page as it was shown in, the changed page out, or nothing where
/// there is nothing to store.
namespace TaskOperations
{

/// Removes every entry of that id from the block, which stays even when its checklist becomes empty. Nothing
/// only when the block is not there: a page that is as it was is stored nevertheless.
std::optional<PelkoDocument> deleteTodo(PelkoDocument doc, const QUuid &blockID, const QUuid &todoID);

/// Adds an unticked entry to the first checklist of the page, or a checklist with that entry to its end.
PelkoDocument addQuickTask(PelkoDocument doc, const QString &text);

} // namespace TaskOperations
