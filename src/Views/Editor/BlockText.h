#pragma once

#include "Editor/SoftBreaks.h"

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QtQml/qqml.h>

#include <optional>

class QTextDocument;

/// Connects a text field and the text of a block in both directions and keeps the caret. TextEdit's own
/// `text` turns no-break spaces into plain ones and moves the caret to the start when it is set; this class
/// reads and writes the field's document and changes only the difference. Characters that a document cannot
/// contain are replaced in the field and stay in the stored text. A long text is shown in short paragraphs
/// without kerning and ligatures, which is faster. A very long one is shown in slices: the field contains the
/// beginning of the text until `showMore()` has added the rest. Positions in the field and in the text are
/// always equal.
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
    /// The text in the store.
    QString content() const { return m_content; }
    /// The distance of lines in device-independent pixels; 0 is the font's own.
    qreal lineHeight() const { return m_lineHeight; }
    /// Whether the field must wrap within words.
    bool hasLongWord() const { return m_hasLongWord; }
    /// Whether a part of the text has not been shown yet.
    bool isGrowing() const { return m_isGrowing; }
    /// Whether the text is too tall, so that its end is never shown.
    bool isCut() const { return m_isCut; }
    /// The length of the shown part of the text in UTF-16 units.
    int shownLength() const { return static_cast<int>(m_shownLength); }

    void setDocument(QQuickTextDocument *document);
    void setContent(const QString &content);
    void setLineHeight(qreal lineHeight);

    /// Emits the field's text if the user has changed it. Call it whenever that is possible, but not while
    /// the field has preedit text. Afterwards the field shows what the store has made of it. `caret` is the
    /// position of the caret.
    Q_INVOKABLE void report(int caret);
    /// Shows the next slice of the text.
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
    /// Returns the text in the field, with a line feed for each of its line breaks.
    QString shown() const;
    /// Returns the text that the field shows in the end: with the characters that a document can contain, and
    /// in short paragraphs.
    QString toShow() const;
    /// Returns the part of it that can be shown at once in place of `before`.
    QString firstPart(const QString &before) const;
    void follow(const QString &before);
    void setHasLongWord(bool hasLongWord);
    /// A plain field has no kerning and ligatures, and draws only its visible part.
    void setPlain(bool isPlain);
    void replaceShown(const QString &before, const QString &after);
    void setShownLength(qsizetype length);
    bool isTooLong() const;
    void show();
    void applyLineHeight();

    QPointer<QQuickTextDocument> m_document;
    QString m_content;
    SoftBreaks m_breaks;
    /// The user's change of the content while it is reported.
    std::optional<TextChange> m_typed;
    /// The whole text to show while the field contains only its beginning.
    QString m_whole;
    qsizetype m_shownLength = 0;
    /// Device-independent pixels. Selecting a text of this height takes a fifth of a second; above 8 million,
    /// Qt does not return.
    qreal m_maximumHeight = 700'000;
    qreal m_lineHeight = 0;
    bool m_isComplete = false;
    bool m_isUpdating = false;
    bool m_isPlain = false;
    bool m_hasLongWord = false;
    bool m_isGrowing = false;
    bool m_isCut = false;
};
