#pragma once

#include "Editor/Edit.h"

/// Operations on any text of a page, in whatever kind of block.
namespace TextOperations
{

/// Returns the page after the field of the text reported a new value; `caret` is the position of the caret in
/// it. See TypingRules, TodoOperations and ImageOperations. Returns std::nullopt for an unknown address.
std::optional<Edit> typed(PelkoDocument document, const TextAddress &address, const QString &value,
                          int caret);

} // namespace TextOperations
