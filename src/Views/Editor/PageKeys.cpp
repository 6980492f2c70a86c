#include "PageKeys.h"

#include "BlockPlace.h"
#include "Composition.h"
#include "FieldCaret.h"
#include "PageCaret.h"
#include "SelectionKeys.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

PageSelection &PageKeys::selection() const
{
    return *m_page.selection();
}

void PageKeys::selectPage()
{
    const Passages &passages = selection().passages();
    if (const auto start = passages.start())
        m_page.show({.anchor = *start, .head = *passages.end()});
    selection().offer();
}

void PageKeys::collapse(bool toEnd)
{
    const QList<SelectedPart> parts = selection().parts().all();
    const SelectedPart &part = toEnd ? parts.last() : parts.first();
    if (part.passage.text)
        return m_page.place({.passage = part.passage.id, .offset = toEnd ? part.end : part.start});
    const Passages &passages = selection().passages();
    for (const bool forward : {toEnd, !toEnd}) {
        if (const Passage *text = passages.textNeighbour(part.passage.id, forward))
            return m_page.place({.passage = text->id, .offset = forward ? 0 : text->length()});
    }
}

bool PageKeys::pressed(FieldCaret &field, const QKeyEvent &event)
{
    if (field.isComposing())
        return pressedWhileComposing(field, event);
    if (selection().isCrossing())
        return pressedWhileSelected(event);
    if (event.matches(QKeySequence::SelectAll) && field.isAllSelected()) {
        selectPage();
        return true;
    }
    const BlockSelection selected = field.selection();
    if (usesPasteboard(selected, event))
        return true;
    const auto key = caretKey(event);
    return key && !field.follows(*key) && go(selected, *key);
}

bool PageKeys::usesPasteboard(const BlockSelection &selected, const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste))
        return selection().pasteText(selected);
    const bool cuts = event.matches(QKeySequence::Cut);
    if (selected.anchor == selected.head || !(cuts || event.matches(QKeySequence::Copy)))
        return false;
    cuts ? selection().cutText(selected) : selection().copyText(selected);
    return true;
}

bool PageKeys::pressedWhileComposing(const FieldCaret &field, const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        Composition::settle(&field.field());
        return true;
    default:
        return false;
    }
}

bool PageKeys::pressed(const BlockPlace &block, const QKeyEvent &event)
{
    if (selection().isCrossing())
        return pressedWhileSelected(event);
    if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut))
        return copies(block, event);
    const auto key = caretKey(event);
    if (!key)
        return false;
    PagePosition near{.passage = {.blockID = block.id()}, .offset = isForward(key->move, false) ? 0 : 1};
    return go({.anchor = near, .head = near}, *key);
}

bool PageKeys::copies(const BlockPlace &block, const QKeyEvent &event)
{
    const PassageID passage{.blockID = block.id()};
    const BlockSelection whole{.anchor = {.passage = passage, .offset = 0},
                               .head = {.passage = passage, .offset = 1}};
    return selection().select(whole) && change(event);
}

bool PageKeys::pressedWhileSelected(const QKeyEvent &event)
{
    const BlockSelection selected = *selection().selection();
    if (const auto key = caretKey(event)) {
        const bool collapses =
            !key->extends && (key->move == CaretMove::left || key->move == CaretMove::right);
        if (!collapses)
            return go(selected, *key);
        collapse(key->move == CaretMove::right);
        return true;
    }
    return change(event);
}

bool PageKeys::change(const QKeyEvent &event)
{
    const SelectionKey key = selectionKey(event);
    switch (key.action) {
    case SelectionKey::Action::copy:
        selection().copy();
        return true;
    case SelectionKey::Action::cut:
        selection().cut();
        return true;
    case SelectionKey::Action::paste:
        selection().paste();
        return true;
    case SelectionKey::Action::selectAll:
        selectPage();
        return true;
    case SelectionKey::Action::remove:
        selection().remove();
        return true;
    case SelectionKey::Action::split:
        selection().split();
        return true;
    case SelectionKey::Action::breakLine:
        selection().breakLine();
        return true;
    case SelectionKey::Action::type:
        selection().replace(key.text);
        return true;
    case SelectionKey::Action::leave:
        m_page.giveUp();
        return false;
    case SelectionKey::Action::none:
        return false;
    }
    return false;
}

bool PageKeys::go(const BlockSelection &from, const CaretKey &key)
{
    const auto to = m_travel.destination(from.head, key);
    if (!to)
        return true;
    key.extends ? m_page.select({.anchor = from.anchor, .head = *to}) : m_page.place(*to);
    return true;
}

bool PageKeys::composed(QInputMethodEvent &event)
{
    if (!selection().isCrossing() || (event.preeditString().isEmpty() && event.commitString().isEmpty()))
        return false;
    selection().remove();
    if (QObject *seam = QGuiApplication::focusObject())
        QCoreApplication::sendEvent(seam, &event);
    return true;
}
