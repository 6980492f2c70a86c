#pragma once

#include "Editor/Edit.h"

/// What becomes of a page when the text field of one of its blocks reports a new value. Exactly one rule
/// applies, in this order: a shortcut turns a body block into another kind; a line feed splits the block;
/// an empty value on an empty block deletes it; otherwise the value is stored.
namespace TypingRules
{

/// `caret` is where the caret stood in `value`. Nothing is returned for an unknown block.
std::optional<Edit> apply(PelkoDocument document, const QUuid &blockID, const QString &value, int caret);

} // namespace TypingRules
