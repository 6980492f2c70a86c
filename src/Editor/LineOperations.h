#pragma once

#include "Editor/Edit.h"

/// Keys that work on lines: line break, split of a block, and indentation of several lines.
namespace LineOperations
{

/// The selected range of a text, or an empty one at the caret, in UTF-16 units.
struct Stretch {
    int start = 0;
    int end = 0;
};

/// Shift+Return: replaces the selection with a line break.
std::optional<Edit> breakLine(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Return: moves the text behind the selection to a new body block or entry below. In code it inserts a line
/// break instead; a second empty line at the end of the code leaves it.
std::optional<Edit> split(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Tab over selected lines: inserts a tab at the start of each selected line.
std::optional<Edit> indent(PelkoDocument document, const TextAddress &field, Stretch selected);

/// Shift+Tab over selected lines: removes a tab, or up to four spaces, from the start of each.
std::optional<Edit> unindent(PelkoDocument document, const TextAddress &field, Stretch selected);

} // namespace LineOperations
