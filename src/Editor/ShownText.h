#pragma once

#include <QString>

/// What a QTextDocument shows of a stored text. A document ends its paragraphs at several characters and
/// reports all of them as line feeds, so stored text must not go through it. Both texts have the same length,
/// and each UTF-16 unit stands for the one at the same place: positions are valid in both.
namespace ShownText
{

/// The text to show: every line break is a line feed, and what a document cannot hold as a character is
/// U+FFFD. The CR of a CR LF is a zero width space.
QString of(const QString &stored);

} // namespace ShownText
