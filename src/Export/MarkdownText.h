#pragma once

#include <QString>

/// Plain text as CommonMark that is read back as the same text. Only characters that would have a meaning are
/// escaped.
namespace MarkdownText
{

/// The position of the text on the page, on which the meaning of its first characters depends.
enum class Place {
    line,   ///< at the start of a line, and so does each line of it
    marked, ///< behind a mark: its first line cannot begin anything
};

/// Returns the text with hard breaks for its line breaks; further lines begin with `indent`. Spaces and
/// breaks at the ends, which a reader would strip, are written as entities.
QString escaped(const QString &text, Place place, const QString &indent = {});

} // namespace MarkdownText
