#include "BlockText.h"

#include "Editor/ShownText.h"
#include "Editor/TextSlice.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace
{
/// Selecting a paragraph of this length takes a fifth of a second; the time grows with the square of the
/// length.
constexpr int longestParagraph = 40'000;

/// UTF-16 units. Less is shown if the text would be taller than allowed.
constexpr qsizetype longestShown = 5'000'000;

/// Shaping letters takes five times as long as laying them out.
QTextCharFormat formatOf(bool isPlain)
{
    QTextCharFormat format;
    if (isPlain) {
        format.setFontStyleStrategy(QFont::PreferNoShaping);
        format.setFontKerning(false);
    }
    return format;
}
} // namespace

QTextDocument *BlockText::text() const
{
    return m_document ? m_document->textDocument() : nullptr;
}

QString BlockText::shown() const
{
    QString plain = text()->toRawText();
    plain.replace(QChar::ParagraphSeparator, u'\n');
    plain.replace(QChar::LineSeparator, u'\n');
    return plain;
}

QString BlockText::toShow() const
{
    return m_breaks.applied(ShownText::of(m_content.left(longestShown)));
}

void BlockText::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (text()) {
        const QScopedValueRollback updating(m_isUpdating, true);
        // Undo belongs to the page, not to a field.
        text()->setUndoRedoEnabled(false);
        applyLineHeight();
        show();
    }
    Q_EMIT documentChanged();
}

void BlockText::setContent(const QString &content)
{
    if (m_content == content)
        return;
    follow(std::exchange(m_content, content));
    show();
    Q_EMIT contentChanged();
}

// The layout needs the width and the font of the field.
void BlockText::componentComplete()
{
    m_isComplete = true;
    show();
}

void BlockText::follow(const QString &before)
{
    const bool isAsTyped = m_typed && m_typed->applied(before) == m_content;
    m_breaks.follow(isAsTyped ? *m_typed : TextChange::between(before, m_content), m_content);
}

void BlockText::setLineHeight(qreal lineHeight)
{
    if (m_lineHeight == lineHeight)
        return;
    m_lineHeight = lineHeight;
    const QScopedValueRollback updating(m_isUpdating, true);
    applyLineHeight();
    Q_EMIT lineHeightChanged();
}

void BlockText::report(int caret)
{
    if (!text() || !m_isComplete || m_isUpdating)
        return;
    const QString before = (m_isGrowing || m_isCut) ? m_whole.first(m_shownLength) : toShow();
    const QString value = shown();
    if (value == before)
        return;
    // While the store answers, the field passes through states that were not typed.
    const QScopedValueRollback updating(m_isUpdating, true);
    m_typed = TextChange::between(before, value, caret);
    Q_EMIT edited(m_typed->applied(m_content));
    m_typed.reset();
    show();
}

void BlockText::show()
{
    if (!text() || !m_isComplete)
        return;
    const QScopedValueRollback updating(m_isUpdating, true);
    // A long text uses the plain layout from before it is set until after it is removed.
    m_whole = toShow();
    const bool hasLongWord = SoftBreaks::hasLongWord(m_whole);
    setPlain(m_isPlain || SoftBreaks::isLong(m_content));
    setHasLongWord(m_hasLongWord || hasLongWord);
    const QString before = shown();
    const QString part = firstPart(before);
    replaceShown(before, part);
    setPlain(SoftBreaks::isLong(m_content));
    setHasLongWord(hasLongWord);
    setShownLength(part.size());
}

QString BlockText::firstPart(const QString &before) const
{
    const bool wasWhole = !m_isGrowing && !m_isCut;
    QString part = wasWhole ? m_whole : m_whole.first(std::min(m_whole.size(), before.size()));
    const TextChange change = TextChange::between(before, part);
    const qsizetype end = sliceEnd(part, change.position);
    if (end < change.position + change.inserted.size())
        part.truncate(end);
    return part;
}

void BlockText::showMore()
{
    if (!text() || !m_isGrowing)
        return;
    const QScopedValueRollback updating(m_isUpdating, true);
    const qsizetype end = sliceEnd(m_whole, m_shownLength);
    QTextCursor cursor(text());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(m_whole.sliced(m_shownLength, end - m_shownLength), formatOf(m_isPlain));
    setShownLength(end);
}

void BlockText::setShownLength(qsizetype length)
{
    m_shownLength = length;
    const bool isWhole = length == m_content.size();
    m_isCut = !isWhole && isTooLong();
    m_isGrowing = !isWhole && !m_isCut;
    if (isWhole)
        m_whole.clear();
    Q_EMIT shownLengthChanged();
}

bool BlockText::isTooLong() const
{
    return m_shownLength >= longestShown || text()->size().height() > m_maximumHeight ||
           text()->lastBlock().length() > longestParagraph;
}

void BlockText::replaceShown(const QString &before, const QString &after)
{
    if (before == after)
        return;
    const TextChange change = TextChange::between(before, after);
    QTextCursor cursor(text());
    cursor.setPosition(static_cast<int>(change.position));
    cursor.setPosition(static_cast<int>(change.position + change.removed.size()), QTextCursor::KeepAnchor);
    cursor.insertText(change.inserted, formatOf(m_isPlain));
}

void BlockText::setHasLongWord(bool hasLongWord)
{
    if (std::exchange(m_hasLongWord, hasLongWord) != hasLongWord)
        Q_EMIT hasLongWordChanged();
}

void BlockText::setPlain(bool isPlain)
{
    if (std::exchange(m_isPlain, isPlain) == isPlain)
        return;
    QTextCursor all(text());
    all.select(QTextCursor::Document);
    all.setCharFormat(formatOf(isPlain));
    // Draws only the visible part.
    if (auto *const field = qobject_cast<QQuickItem *>(m_document->parent()))
        field->setFlag(QQuickItem::ItemObservesViewport, isPlain);
}

void BlockText::applyLineHeight()
{
    if (!text() || m_lineHeight <= 0)
        return;
    QTextBlockFormat format;
    format.setLineHeight(m_lineHeight, QTextBlockFormat::FixedHeight);
    QTextCursor cursor(text());
    cursor.select(QTextCursor::Document);
    cursor.mergeBlockFormat(format);
}
