#include "BlockText.h"

#include "Editor/TextChange.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QQuickItem>
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

void BlockText::report()
{
    // While the store answers, the field passes through states that nobody typed.
    if (!text() || m_isReporting)
        return;
    const QString value = shown();
    if (value == m_content)
        return;
    m_isReporting = true;
    Q_EMIT edited(value);
    show();
    m_isReporting = false;
}

void BlockText::askInputMethod() const
{
    QGuiApplication::inputMethod()->commit();
}

void BlockText::commit(QQuickItem *field, const QString &composed)
{
    if (!field || composed.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(composed);
    QCoreApplication::sendEvent(field, &event);
}

void BlockText::show()
{
    if (!text())
        return;
    const QString before = shown();
    if (before == m_content)
        return;
    const TextChange change = TextChange::between(before, m_content);
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
