#pragma once

#include "Editor/Edit.h"

/// Backspace at the start of a text and Delete at its end: two texts become one. Only text is removed: a
/// divider or a picture in between gets the focus first, and the next key removes it.
namespace JoinOperations
{

/// Backspace at the start of a text. A heading, quote or code becomes body text first, and the first entry of
/// a checklist becomes body text above it; then the text is appended to the text above.
std::optional<Edit> backwards(PelkoDocument document, const TextAddress &text);

/// Delete at the end of a text: appends the text below. An empty body block or entry is removed instead, so
/// that the block below keeps its kind.
std::optional<Edit> forwards(PelkoDocument document, const TextAddress &text);

/// Backspace (or Delete if `forward`) on a divider or a picture: removes it. The caret goes to the end of the
/// text above (or to the start of the text below), if there is one.
std::optional<Edit> remove(PelkoDocument document, const QUuid &blockID, bool forward);

} // namespace JoinOperations
