#pragma once

#include <QString>

/// Plain text as CommonMark that reads back as the same text: what would be a mark is escaped, and only that.
namespace MarkdownText
{

/// Where a text stands decides what its first letters could be taken for.
enum class Place {
    line,   ///< at the start of a line, and so does each line of it
    marked, ///< behind a mark: its first line cannot begin anything
};

/// The text with hard breaks for its line breaks; each of its further lines begins with `indent`. Spaces and
/// breaks at the ends, which a reader would strip, are spelled out.
QString escaped(const QString &text, Place place, const QString &indent = {});

} // namespace MarkdownText
