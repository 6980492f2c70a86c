#pragma once

#include <QString>

/// The text that a QTextDocument shows for a stored text. A document ends paragraphs at several characters
/// and returns all of them as line feeds, so stored text must never be read back from it. Both texts have the
/// same length and correspond unit by unit, so positions are valid in both.
namespace ShownText
{

/// Returns the text to show: line breaks become line feeds, and characters that a document cannot contain
/// become U+FFFD. The CR of CR LF becomes a zero width space.
QString of(const QString &stored);

} // namespace ShownText
