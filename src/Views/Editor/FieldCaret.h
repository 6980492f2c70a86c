#pragma once

#include "CaretMove.h"
#include "Editor/BlockSelection.h"
#include "Editor/LineOperations.h"
#include "PageListener.h"
#include "WaitingInput.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickTextDocument>

/// Extends the caret of one text field, its parent, to the whole page, and shows in the field its part of the
/// selection. It receives keys and pointer events before the field. While the field contains only the
/// beginning of its text, keys wait until the caret's place is shown.
class FieldCaret : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(PageListener *page MEMBER m_page REQUIRED)
    Q_PROPERTY(TextAddress address MEMBER m_address REQUIRED)
    Q_PROPERTY(bool waits READ waits WRITE setWaits NOTIFY waitsChanged)
    Q_PROPERTY(bool hasWaitingInput READ hasWaitingInput NOTIFY waitingInputChanged)
    Q_PROPERTY(bool isCut MEMBER m_isCut)
    Q_PROPERTY(bool isSingleLine MEMBER m_isSingleLine)
    Q_PROPERTY(bool selectedEmpty READ isSelectedEmpty NOTIFY selectedEmptyChanged)
    QML_ELEMENT

public:
    using QObject::QObject;

    const TextAddress &id() const { return m_address; }
    QQuickItem &field() const;
    /// A row that has left the view has no window, even before it is destroyed.
    bool isOnPage() const { return m_page && field().window(); }
    const QTextDocument &text() const;
    bool hasFocus() const { return field().hasActiveFocus(); }
    /// Whether Return finishes the input instead of inserting a line break.
    bool isSingleLine() const { return m_isSingleLine; }
    /// Whether the end of the text is never shown.
    bool isCut() const { return m_isCut; }
    /// Whether a part of the text has not been shown yet.
    bool waits() const { return m_waits; }
    void setWaits(bool waits);
    bool hasWaitingInput() const { return !m_waiting.isEmpty(); }
    /// Sends the first waiting key to the item that has the focus.
    Q_INVOKABLE void sendNextInput();
    /// Sends the waiting keys to the field, whatever has the focus.
    Q_INVOKABLE void takeWaitingInput();

    /// The moving end and the anchor of the selection.
    int caret() const;
    int anchor() const;
    BlockSelection selection() const;
    LineOperations::Stretch stretch() const;
    bool isAllSelected() const;
    /// The length of the shown text in UTF-16 units.
    int length() const;
    QString textBetween(int start, int end) const;
    void insert(int position, const QString &text);
    void remove(int start, int end);
    /// Whether an input method has preedit text in the field.
    bool isComposing() const { return !field().property("preeditText").toString().isEmpty(); }
    /// Returns whether the field handles the key by itself.
    bool follows(const CaretKey &key) const;
    /// Whether the text is empty and its line belongs to a selection over several passages.
    bool isSelectedEmpty() const { return m_isSelectedEmpty; }

    /// Selects from `anchor` to `caret`. Positions that are not shown yet are selected later.
    Q_INVOKABLE void select(int anchor, int caret);
    void deselect() { select(caret(), caret()); }
    /// Shows this field's part of a selection over several passages.
    void show(const SelectedParts &parts, const std::optional<BlockSelection> &selection);
    void takeFocus();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void waitsChanged();
    void waitingInputChanged();
    void selectedEmptyChanged();
    /// Return was pressed in a field of one line.
    void finished();

private:
    void showPart(const SelectedPart &part, const std::optional<BlockSelection> &selection);
    void setSelectedEmpty(bool selected);
    bool keeps(const QEvent &event);
    void send(QQuickItem *receiver);
    void offerSelectionLater();

    QPointer<PageListener> m_page;
    TextAddress m_address;
    bool m_isSelectedEmpty = false;
    bool m_waits = false;
    bool m_isCut = false;
    bool m_isSingleLine = false;
    bool m_isSending = false;
    WaitingInput m_waiting;
    /// The wanted anchor and caret, while they are not shown yet.
    std::optional<std::pair<int, int>> m_wanted;
};
