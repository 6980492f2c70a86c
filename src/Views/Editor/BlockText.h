#pragma once

#include "Editor/SoftBreaks.h"

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QtQml/qqml.h>

#include <optional>

class QTextDocument;

/// Keeps a text field and the text of a block the same, both ways, without ever losing the caret. A text
/// edit's own `text` turns no-break spaces into plain ones and puts the caret back to the start when it is
/// assigned; this one reads and writes the document under the field, and changes only what differs.
/// Characters that the document cannot hold are shown as others and stay in the stored text. A long text is
/// shown in a plainer way that stays quick: in short paragraphs, and without kerning and ligatures.
class BlockText : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged REQUIRED)
    Q_PROPERTY(QString content READ content WRITE setContent NOTIFY contentChanged)
    Q_PROPERTY(qreal lineHeight READ lineHeight WRITE setLineHeight NOTIFY lineHeightChanged)
    Q_PROPERTY(bool hasLongWord READ hasLongWord NOTIFY hasLongWordChanged)
    QML_ELEMENT

public:
    using QObject::QObject;

    QQuickTextDocument *document() const { return m_document; }
    /// The text as the store has it.
    QString content() const { return m_content; }
    /// Device-independent pixels from one line to the next; 0 leaves it to the font.
    qreal lineHeight() const { return m_lineHeight; }
    /// Whether the field has to wrap words anywhere.
    bool hasLongWord() const { return m_hasLongWord; }

    void setDocument(QQuickTextDocument *document);
    void setContent(const QString &content);
    void setLineHeight(qreal lineHeight);

    /// Announces the field's text if the writer has changed it. To be called when it may have changed, but
    /// not while the field has preedit text. Whatever the store made of it is in the field afterwards.
    /// `caret` is where the caret stands now.
    Q_INVOKABLE void report(int caret);

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void documentChanged();
    void contentChanged();
    void lineHeightChanged();
    void hasLongWordChanged();
    void edited(const QString &value);

private:
    QTextDocument *text() const;
    /// What the field shows, with a line feed for each of its line breaks.
    QString shown() const;
    /// What the field is to show: the content in characters that a document can hold, in short paragraphs.
    QString toShow() const;
    void follow(const QString &before);
    void setHasLongWord(bool hasLongWord);
    /// Without kerning and ligatures, and drawn only where it is in sight.
    void setPlain(bool isPlain);
    void replaceShown(const QString &before, const QString &after);
    void show();
    void applyLineHeight();

    QPointer<QQuickTextDocument> m_document;
    QString m_content;
    SoftBreaks m_breaks;
    /// The writer's change of the content, while it is reported.
    std::optional<TextChange> m_typed;
    qreal m_lineHeight = 0;
    bool m_isComplete = false;
    bool m_isUpdating = false;
    bool m_isPlain = false;
    bool m_hasLongWord = false;
};
