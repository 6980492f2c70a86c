#pragma once

#include "Editor/Edit.h"

/// The keys that work on lines, where they say something else than the value of a field would: a line break
/// within a block, a split of a block, and the indentation of several lines.
namespace LineOperations
{

/// The part of a text that is selected, or where its caret stands: UTF-16 units from the start.
struct Stretch {
    int start = 0;
    int end = 0;
};

/// Shift+Return: a line break in the text that `field` names, in place of what is selected.
std::optional<Edit> breakLine(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Return: what stands behind the selection goes on below, in a body block or in an entry of its own. Code of
/// several lines takes a line break instead; a second one at its end leaves it.
std::optional<Edit> split(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Tab over selected lines: each line that the selection touches begins with one more tab.
std::optional<Edit> indent(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Shift+Tab over selected lines: each loses the tab, or up to four spaces, that it begins with.
std::optional<Edit> unindent(PelkoDocument document, const TextAddress &field, Stretch selected);

} // namespace LineOperations
