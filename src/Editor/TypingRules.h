#pragma once

#include "Editor/Edit.h"

/// The rules for a new value of a block's text field. Exactly one applies, in this order: a shortcut turns a
/// body block into another kind; a line feed splits the block; an empty value on an empty block deletes it;
/// otherwise the value is stored.
namespace TypingRules
{

/// `caret` is the position of the caret in `value`. Returns std::nullopt for an unknown block.
std::optional<Edit> apply(PelkoDocument document, const QUuid &blockID, const QString &value, int caret);

} // namespace TypingRules
