#pragma once

#include "Editor/Edit.h"

/// The keys that make lines, where they say something else than the value of a field would: a line break
/// within a block, and a split of a block that already has line breaks.
namespace LineOperations
{

/// The part of a text that is selected, or where its caret stands: UTF-16 units from the start.
struct Stretch {
    int start = 0;
    int end = 0;
};

/// Shift+Return: a line break in the text that `field` names, in place of what is selected.
std::optional<Edit> breakLine(PelkoDocument document, const FocusTarget &field, Stretch selected);

/// Return in a text of several lines: what stands behind the selection goes on below, in a body block or in
/// an entry of its own. Code takes the line break instead; a second one at its end leaves it.
std::optional<Edit> split(PelkoDocument document, const FocusTarget &field, Stretch selected);

} // namespace LineOperations
