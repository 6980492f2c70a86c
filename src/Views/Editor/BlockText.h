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
/// shown in a plainer way that stays quick: in short paragraphs, and without kerning and ligatures. What
/// takes longer to lay out than a moment is shown in slices, from the first to the last: the field holds the
/// beginning of the text until `showMore()` has shown the rest, and positions in it are the same in the text.
class BlockText : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged REQUIRED)
    Q_PROPERTY(QString content READ content WRITE setContent NOTIFY contentChanged)
    Q_PROPERTY(qreal lineHeight READ lineHeight WRITE setLineHeight NOTIFY lineHeightChanged)
    Q_PROPERTY(bool hasLongWord READ hasLongWord NOTIFY hasLongWordChanged)
    Q_PROPERTY(bool isGrowing READ isGrowing NOTIFY shownLengthChanged)
    Q_PROPERTY(bool isCut READ isCut NOTIFY shownLengthChanged)
    Q_PROPERTY(int shownLength READ shownLength NOTIFY shownLengthChanged)
    Q_PROPERTY(qreal maximumHeight MEMBER m_maximumHeight NOTIFY maximumHeightChanged)
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
    /// Whether more of the text is to be shown.
    bool isGrowing() const { return m_isGrowing; }
    /// Whether the text is too tall to be shown as a whole, so that its end stays hidden.
    bool isCut() const { return m_isCut; }
    /// How much of the text the field holds, in UTF-16 units.
    int shownLength() const { return static_cast<int>(m_shownLength); }

    void setDocument(QQuickTextDocument *document);
    void setContent(const QString &content);
    void setLineHeight(qreal lineHeight);

    /// Announces the field's text if the writer has changed it. To be called when it may have changed, but
    /// not while the field has preedit text. Whatever the store made of it is in the field afterwards.
    /// `caret` is where the caret stands now.
    Q_INVOKABLE void report(int caret);
    /// Shows the next slice of a text that grows.
    Q_INVOKABLE void showMore();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void documentChanged();
    void contentChanged();
    void lineHeightChanged();
    void hasLongWordChanged();
    void shownLengthChanged();
    void maximumHeightChanged();
    void edited(const QString &value);

private:
    QTextDocument *text() const;
    /// What the field shows, with a line feed for each of its line breaks.
    QString shown() const;
    /// What the field is to show in the end: the content in characters that a document can hold, in short
    /// paragraphs.
    QString toShow() const;
    /// As much of it as can be shown at once in the place of `before`.
    QString firstPart(const QString &before) const;
    void follow(const QString &before);
    void setHasLongWord(bool hasLongWord);
    /// Without kerning and ligatures, and drawn only where it is in sight.
    void setPlain(bool isPlain);
    void replaceShown(const QString &before, const QString &after);
    void setShownLength(qsizetype length);
    bool isTooLong() const;
    void show();
    void applyLineHeight();

    QPointer<QQuickTextDocument> m_document;
    QString m_content;
    SoftBreaks m_breaks;
    /// The writer's change of the content, while it is reported.
    std::optional<TextChange> m_typed;
    /// The whole text in the characters that are shown, while the field has only the beginning of it.
    QString m_whole;
    qsizetype m_shownLength = 0;
    /// Device-independent pixels. To select all of a text so tall takes a fifth of a second; for one taller
    /// than 8 million, Qt never comes to an end.
    qreal m_maximumHeight = 700'000;
    qreal m_lineHeight = 0;
    bool m_isComplete = false;
    bool m_isUpdating = false;
    bool m_isPlain = false;
    bool m_hasLongWord = false;
    bool m_isGrowing = false;
    bool m_isCut = false;
};
