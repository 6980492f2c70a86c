#pragma once

#include "CaretMove.h"

#include <QtGlobal>

#include <optional>

class QPointF;
class QTextDocument;

/// Moves of a caret in a text as it is laid out in its field. Places are counted in UTF-16 units, x and y in
/// the coordinates of the field. Nothing is returned where a move leads out of the text.
namespace TextLines
{

/// Whether the paragraph at `position` is in a script that is read from right to left.
bool readsFromRight(const QTextDocument &text, int position);

/// A move to the side, by characters, words or to an end of the line.
std::optional<int> aside(const QTextDocument &text, int position, CaretMove move);

/// The place nearest to `x` in the line above or below.
std::optional<int> nextLine(const QTextDocument &text, int position, bool down, qreal x);

/// The place nearest to `x` in the first or the last line.
int endLine(const QTextDocument &text, bool last, qreal x);

/// The place nearest to a point.
int nearest(const QTextDocument &text, QPointF point);

/// Where the caret stands from left to right.
qreal xOf(const QTextDocument &text, int position);

/// The middle of the line that the caret stands in, from the top of the text.
qreal middleOf(const QTextDocument &text, int position);

} // namespace TextLines
