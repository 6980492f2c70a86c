#pragma once

#include "CaretMove.h"
#include "Editor/BlockSelection.h"
#include "Editor/LineOperations.h"
#include "PageListener.h"
#include "WaitingInput.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickTextDocument>

/// Lets the caret of one text field, its parent, leave the field for the rest of the page, and shows in the
/// field what is selected of it. It sees keys and pointer before the field does. While the field has only the
/// beginning of its text, keys wait until the caret can be where it is to be.
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
    /// The row of a block that has left the view is in no window any more, even before it is destroyed.
    bool isOnPage() const { return m_page && field().window(); }
    const QTextDocument &text() const;
    bool hasFocus() const { return field().hasActiveFocus(); }
    /// Return ends the writing instead of breaking a line.
    bool isSingleLine() const { return m_isSingleLine; }
    /// Whether the end of the text is not shown.
    bool isCut() const { return m_isCut; }
    /// Whether more of the text is to be shown.
    bool waits() const { return m_waits; }
    void setWaits(bool waits);
    bool hasWaitingInput() const { return !m_waiting.isEmpty(); }
    /// The first key that waits goes to whatever has the focus.
    Q_INVOKABLE void sendNextInput();
    /// The keys that wait go to the field, whatever has the focus.
    Q_INVOKABLE void takeWaitingInput();

    /// The end of the selection where the caret stands, and the other one.
    int caret() const;
    int anchor() const;
    BlockSelection selection() const;
    LineOperations::Stretch stretch() const;
    bool isAllSelected() const;
    /// Of the text that is shown, in UTF-16 units.
    int length() const;
    QString textBetween(int start, int end) const;
    void insert(int position, const QString &text);
    void remove(int start, int end);
    /// Whether an input method has preedit text in the field.
    bool isComposing() const { return !field().property("preeditText").toString().isEmpty(); }
    /// Whether the field can follow that key by itself.
    bool follows(const CaretKey &key) const;
    /// There is no text, yet its line belongs to a selection that goes on below.
    bool isSelectedEmpty() const { return m_isSelectedEmpty; }

    /// Positions that are not shown yet are selected as soon as they are.
    Q_INVOKABLE void select(int anchor, int caret);
    void deselect() { select(caret(), caret()); }
    /// Shows the part of a selection over several passages, or of none.
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
    /// The end of the selection where the caret is to stand, and before it the other one.
    std::optional<std::pair<int, int>> m_wanted;
};
