#include "TextLines.h"

#include <QAbstractTextDocumentLayout>
#include <QPointF>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace
{

QTextCursor::MoveOperation operationOf(CaretMove move)
{
    switch (move) {
    case CaretMove::left:
        return QTextCursor::Left;
    case CaretMove::right:
        return QTextCursor::Right;
    case CaretMove::wordLeft:
        return QTextCursor::WordLeft;
    case CaretMove::wordRight:
        return QTextCursor::WordRight;
    case CaretMove::lineStart:
        return QTextCursor::StartOfLine;
    case CaretMove::lineEnd:
        return QTextCursor::EndOfLine;
    default:
        return QTextCursor::NoMove;
    }
}

/// One visual line; a paragraph may be wrapped into several.
struct Line {
    QTextBlock paragraph;
    QTextLine line;
};

/// Returns the position of the paragraph in the field, after laying it out if needed.
QPointF originOf(const QTextBlock &paragraph)
{
    return paragraph.document()->documentLayout()->blockBoundingRect(paragraph).topLeft();
}

Line lineOf(const QTextBlock &paragraph, int index)
{
    originOf(paragraph);
    return {.paragraph = paragraph, .line = paragraph.layout()->lineAt(index)};
}

Line lastLineOf(const QTextBlock &paragraph)
{
    originOf(paragraph);
    return lineOf(paragraph, paragraph.layout()->lineCount() - 1);
}

Line lineAround(const QTextDocument &text, int position)
{
    const QTextBlock paragraph = text.findBlock(position);
    originOf(paragraph);
    return {.paragraph = paragraph,
            .line = paragraph.layout()->lineForTextPosition(position - paragraph.position())};
}

int placeIn(const Line &at, qreal x)
{
    const QTextLayout &layout = *at.paragraph.layout();
    const int end = at.line.textStart() + at.line.textLength();
    int place = at.line.xToCursor(x - originOf(at.paragraph).x());
    // Behind the last character of a wrapped line, the caret is drawn in the next line.
    if (place == end && at.line.lineNumber() < layout.lineCount() - 1)
        place = std::max(layout.previousCursorPosition(end), at.line.textStart());
    return at.paragraph.position() + place;
}

} // namespace

bool TextLines::readsFromRight(const QTextDocument &text, int position)
{
    return text.findBlock(position).textDirection() == Qt::RightToLeft;
}

std::optional<int> TextLines::aside(const QTextDocument &text, int position, CaretMove move)
{
    const bool isWithinLine = move == CaretMove::lineStart || move == CaretMove::lineEnd;
    QTextCursor cursor(text.findBlock(position));
    cursor.setPosition(position);
    if (!cursor.movePosition(operationOf(move)) || cursor.position() == position)
        return isWithinLine ? std::optional(position) : std::nullopt;
    return cursor.position();
}

std::optional<int> TextLines::nextLine(const QTextDocument &text, int position, bool down, qreal x)
{
    const Line current = lineAround(text, position);
    const int index = current.line.lineNumber() + (down ? 1 : -1);
    if (index >= 0 && index < current.paragraph.layout()->lineCount())
        return placeIn(lineOf(current.paragraph, index), x);
    const QTextBlock next = down ? current.paragraph.next() : current.paragraph.previous();
    if (!next.isValid())
        return std::nullopt;
    return placeIn(down ? lineOf(next, 0) : lastLineOf(next), x);
}

int TextLines::endLine(const QTextDocument &text, bool last, qreal x)
{
    return placeIn(last ? lastLineOf(text.lastBlock()) : lineOf(text.firstBlock(), 0), x);
}

int TextLines::nearest(const QTextDocument &text, QPointF point)
{
    QTextBlock paragraph = text.firstBlock();
    while (paragraph.next().isValid() && originOf(paragraph.next()).y() <= point.y())
        paragraph = paragraph.next();
    Line found = lineOf(paragraph, 0);
    for (int index = 1; index < paragraph.layout()->lineCount(); ++index) {
        const Line next = lineOf(paragraph, index);
        if (originOf(paragraph).y() + next.line.y() <= point.y())
            found = next;
    }
    return placeIn(found, point.x());
}

qreal TextLines::xOf(const QTextDocument &text, int position)
{
    const Line line = lineAround(text, position);
    return originOf(line.paragraph).x() + line.line.cursorToX(position - line.paragraph.position());
}

qreal TextLines::middleOf(const QTextDocument &text, int position)
{
    const Line line = lineAround(text, position);
    return originOf(line.paragraph).y() + line.line.y() + line.line.height() / 2;
}
