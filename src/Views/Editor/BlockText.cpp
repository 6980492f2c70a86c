#include "BlockText.h"

#include "Editor/ShownText.h"
#include "Editor/TextChange.h"

#include <QScopedValueRollback>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

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

void BlockText::setDocument(QQuickTextDocument *document)
{
    if (m_document == document)
        return;
    m_document = document;
    if (text()) {
        // Undo belongs to the page, not to one field.
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
    m_content = content;
    show();
    Q_EMIT contentChanged();
}

void BlockText::setLineHeight(qreal lineHeight)
{
    if (m_lineHeight == lineHeight)
        return;
    m_lineHeight = lineHeight;
    applyLineHeight();
    Q_EMIT lineHeightChanged();
}

void BlockText::report(int caret)
{
    if (!text() || m_isUpdating)
        return;
    const QString value = shown();
    if (value == ShownText::of(m_content))
        return;
    // While the store answers, the field passes through states that nobody typed.
    const QScopedValueRollback updating(m_isUpdating, true);
    Q_EMIT edited(ShownText::changed(m_content, value, caret));
    show();
}

void BlockText::show()
{
    if (!text())
        return;
    const QString before = shown();
    const QString after = ShownText::of(m_content);
    if (before == after)
        return;
    const QScopedValueRollback updating(m_isUpdating, true);
    const TextChange change = TextChange::between(before, after);
    QTextCursor cursor(text());
    cursor.setPosition(static_cast<int>(change.position));
    cursor.setPosition(static_cast<int>(change.position + change.removed.size()), QTextCursor::KeepAnchor);
    cursor.insertText(change.inserted);
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
