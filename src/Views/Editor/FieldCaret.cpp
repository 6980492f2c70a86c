#include "FieldCaret.h"

#include "EditorKeys.h"
#include "TextLines.h"

#include <QQuickWindow>
#include <QTextDocument>

#include <algorithm>
#include <utility>

void FieldCaret::componentComplete()
{
    field().installEventFilter(this);
    connect(&field(), &QQuickItem::activeFocusChanged, this, [this](bool hasFocus) {
        if (hasFocus && m_page)
            m_page->entered(*this);
    });
    m_page->add(*this);
}

QQuickItem &FieldCaret::field() const
{
    return *static_cast<QQuickItem *>(parent());
}

const QTextDocument &FieldCaret::text() const
{
    return *field().property("textDocument").value<QQuickTextDocument *>()->textDocument();
}

int FieldCaret::caret() const
{
    return field().property("cursorPosition").toInt();
}

int FieldCaret::anchor() const
{
    const int start = field().property("selectionStart").toInt();
    return start == caret() ? field().property("selectionEnd").toInt() : start;
}

BlockSelection FieldCaret::selection() const
{
    return {.anchor = {.passage = id(), .offset = anchor()}, .head = {.passage = id(), .offset = caret()}};
}

bool FieldCaret::isAllSelected() const
{
    return m_isCut || qAbs(anchor() - caret()) == length();
}

LineOperations::Stretch FieldCaret::stretch() const
{
    return {.start = std::min(anchor(), caret()), .end = std::max(anchor(), caret())};
}

int FieldCaret::length() const
{
    return field().property("length").toInt();
}

QString FieldCaret::textBetween(int start, int end) const
{
    QString found;
    for (int position = start; position < end; ++position)
        found += text().characterAt(position);
    return found;
}

void FieldCaret::insert(int position, const QString &text)
{
    QMetaObject::invokeMethod(&field(), "insert", Q_ARG(int, position), Q_ARG(QString, text));
}

void FieldCaret::remove(int start, int end)
{
    QMetaObject::invokeMethod(&field(), "remove", Q_ARG(int, start), Q_ARG(int, end));
}

bool FieldCaret::follows(const CaretKey &key) const
{
    if (isVertical(key.move) || key.move == CaretMove::start || key.move == CaretMove::end)
        return false;
    const bool collapses = !key.extends && anchor() != caret();
    return collapses || TextLines::aside(text(), caret(), key.move);
}

void FieldCaret::select(int anchor, int caret)
{
    m_wanted.reset();
    const int length = this->length();
    if (m_waits && std::max(anchor, caret) > length) {
        m_wanted = {anchor, caret};
        return;
    }
    anchor = std::min(anchor, length);
    caret = std::min(caret, length);
    if (this->anchor() != anchor || this->caret() != caret)
        QMetaObject::invokeMethod(&field(), "select", Q_ARG(int, anchor), Q_ARG(int, caret));
}

void FieldCaret::show(const SelectedParts &parts, const std::optional<BlockSelection> &selection)
{
    const SelectedPart *part = parts.of(id());
    setSelectedEmpty(part && part->passage.length() == 0 && part != &parts.all().last());
    // A passage that is selected as a whole has an overlay instead.
    if (part && !parts.covers(part->passage.id.blockID))
        showPart(*part, selection);
    else if (selection || !hasFocus())
        deselect();
}

void FieldCaret::showPart(const SelectedPart &part, const std::optional<BlockSelection> &selection)
{
    const bool isUpwards =
        selection && selection->head == PagePosition{.passage = part.passage.id, .offset = part.start};
    isUpwards ? select(part.end, part.start) : select(part.start, part.end);
}

void FieldCaret::setSelectedEmpty(bool selected)
{
    if (m_isSelectedEmpty == selected)
        return;
    m_isSelectedEmpty = selected;
    Q_EMIT selectedEmptyChanged();
}

void FieldCaret::setWaits(bool waits)
{
    if (m_waits == waits)
        return;
    m_waits = waits;
    Q_EMIT waitsChanged();
    if (const auto wanted = waits ? std::nullopt : std::exchange(m_wanted, {}))
        select(wanted->first, wanted->second);
}

bool FieldCaret::keeps(const QEvent &event)
{
    // Keys after a waiting one wait as well.
    if (m_isSending || !(m_waits || hasWaitingInput()))
        return false;
    bool isKept = false;
    if (event.type() == QEvent::InputMethod) {
        isKept = m_waiting.keepsComposition(static_cast<const QInputMethodEvent &>(event));
    } else {
        const auto &key = static_cast<const QKeyEvent &>(event);
        isKept = !isModifier(key) && m_waiting.keepsKey(key);
    }
    Q_EMIT waitingInputChanged();
    return isKept;
}

/// A key can remove the block with its field.
void FieldCaret::send(QQuickItem *receiver)
{
    const QPointer guard(this);
    m_isSending = true;
    QCoreApplication::sendEvent(receiver, m_waiting.takeFirst().get());
    if (!guard)
        return;
    m_isSending = false;
    Q_EMIT waitingInputChanged();
}

void FieldCaret::sendNextInput()
{
    QQuickItem *const receiver = isOnPage() ? field().window()->activeFocusItem() : nullptr;
    if (receiver && hasWaitingInput())
        send(receiver);
}

void FieldCaret::takeWaitingInput()
{
    // A key that was sent may have moved the focus: the next ones go to the new item.
    const QPointer guard(this);
    while (guard && !m_isSending && hasWaitingInput())
        send(&field());
}

void FieldCaret::takeFocus()
{
    field().forceActiveFocus(Qt::OtherFocusReason);
}

// With the same event the field offers the shown text, which may differ from the stored one.
void FieldCaret::offerSelectionLater()
{
    const auto offer = [this] {
        if (isOnPage())
            m_page->offer(*this);
    };
    QMetaObject::invokeMethod(this, offer, Qt::QueuedConnection);
}

bool FieldCaret::eventFilter(QObject *, QEvent *event)
{
    if (!m_page)
        return false;
    const bool isInput = event->type() == QEvent::KeyPress || event->type() == QEvent::InputMethod;
    if (isInput && keeps(*event))
        return true;
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonRelease)
        offerSelectionLater();
    return m_page->handle(*this, *event);
}
