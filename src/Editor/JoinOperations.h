#pragma once

#include "Editor/Edit.h"

/// What Backspace at the very start of a text does, and Delete at its very end: two texts become one. Nothing
/// but text is ever removed by that. A divider or a picture in the way is only stepped onto, where a further
/// key removes it.
namespace JoinOperations
{

/// Backspace at the start of a text. A heading, a quote or code becomes body text first,
/// and the first entry of a checklist leaves it as body text; then text joins the text above.
std::optional<Edit> backwards(PelkoDocument document, const TextAddress &text);

/// Delete at the end of a text: the text below joins it. An empty body block or entry
/// makes way instead, so that what is below stays what it is.
std::optional<Edit> forwards(PelkoDocument document, const TextAddress &text);

/// Backspace (or Delete, `forward`) on a divider or a picture itself. The caret goes to the end of the text
/// above (or to the start of the text below), where there is one.
std::optional<Edit> remove(PelkoDocument document, const QUuid &blockID, bool forward);

} // namespace JoinOperations
