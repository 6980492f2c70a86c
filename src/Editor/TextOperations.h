#pragma once

#include "Editor/Edit.h"

/// What can be done with any text of a page, whatever it belongs to.
namespace TextOperations
{

/// What becomes of the page when the field of that text reports a new value, `caret` being where the caret
/// stood in it; see TypingRules, TodoOperations and ImageOperations. Nothing is returned for an unknown
/// address.
std::optional<Edit> typed(PelkoDocument document, const TextAddress &address, const QString &value,
                          int caret);

} // namespace TextOperations
