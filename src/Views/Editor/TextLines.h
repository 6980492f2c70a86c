#pragma once

#include "CaretMove.h"

#include <QtGlobal>

#include <optional>

class QPointF;
class QTextDocument;

/// Caret movements in the layout of a text. Positions are in UTF-16 units; x and y are in the coordinates of
/// the field. std::nullopt means that the move leaves the text.
namespace TextLines
{

/// Returns whether the paragraph at `position` is right-to-left.
bool readsFromRight(const QTextDocument &text, int position);

/// A horizontal move by characters, words or to an end of the line.
std::optional<int> aside(const QTextDocument &text, int position, CaretMove move);

/// Returns the position nearest to `x` in the line above or below.
std::optional<int> nextLine(const QTextDocument &text, int position, bool down, qreal x);

/// Returns the position nearest to `x` in the first or the last line.
int endLine(const QTextDocument &text, bool last, qreal x);

/// Returns the position nearest to a point.
int nearest(const QTextDocument &text, QPointF point);

/// Returns the x coordinate of the caret.
qreal xOf(const QTextDocument &text, int position);

/// Returns the y coordinate of the middle of the caret's line.
qreal middleOf(const QTextDocument &text, int position);

} // namespace TextLines
