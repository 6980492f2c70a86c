#include "PageKeys.h"

#include "BlockPlace.h"
#include "Composition.h"
#include "Editor/EditorViewModel.h"
#include "EditorKeys.h"
#include "FieldCaret.h"
#include "FieldKeys.h"
#include "PageFields.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QQuickWindow>

PageKeys::PageKeys(PageFields &page) : m_page(page), m_travel(page) {}

EditorViewModel &PageKeys::editor() const
{
    return *m_page.editor();
}

PageSelection &PageKeys::selection() const
{
    return m_page.selection();
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
    if (!isModifier(event))
        Q_EMIT keyPressed();
    const EditorKey key = editorKey(event);
    const bool isDone = field.isComposing()
                            ? settles(field, key)
                            : (selection().isCrossing() && inSelection(key)) || inText(field, key);
    return isDone || inRow(field.id().blockID, key);
}

bool PageKeys::settles(const FieldCaret &field, const EditorKey &key)
{
    switch (key.action) {
    case EditorAction::newBlock:
    case EditorAction::newLine:
    case EditorAction::indent:
    case EditorAction::unindent:
    case EditorAction::focusNext:
    case EditorAction::focusPrevious:
        Composition::settle(&field.field());
        return true;
    default:
        return false;
    }
}

bool PageKeys::inText(FieldCaret &field, const EditorKey &key)
{
    if (key.action == EditorAction::moveCaret)
        return !field.follows(key.caret) && go(field.selection(), key.caret);
    if (key.action == EditorAction::selectAll) {
        if (!field.isAllSelected())
            return false;
        selectPage();
        return true;
    }
    if (key.action == EditorAction::newBlock && field.isSingleLine()) {
        Q_EMIT field.finished();
        return true;
    }
    return FieldKeys(field, editor()).pressed(key);
}

bool PageKeys::pressed(const BlockPlace &block, const QKeyEvent &event)
{
    const EditorKey key = editorKey(event);
    const bool isForControl = key.action == EditorAction::insertText || key.action == EditorAction::newBlock;
    if (isForControl && !block.hasFocusItself())
        return false;
    if (selection().isCrossing() && block.hasFocus()) {
        if (inSelection(key))
            return true;
    } else if (block.hasFocus() && onWhole(block, key)) {
        return true;
    }
    return inRow(block.id(), key);
}

bool PageKeys::onWhole(const BlockPlace &block, const EditorKey &key)
{
    switch (key.action) {
    case EditorAction::copy:
    case EditorAction::cut:
        return copiesWhole(block, key);
    case EditorAction::deleteBackward:
    case EditorAction::deleteRangeBackward:
        editor().keys()->remove(block.id(), false);
        return true;
    case EditorAction::deleteForward:
    case EditorAction::deleteRangeForward:
        editor().keys()->remove(block.id(), true);
        return true;
    case EditorAction::moveCaret: {
        const PagePosition near{.passage = {.blockID = block.id()},
                                .offset = isForward(key.caret.move, false) ? 0 : 1};
        return go({.anchor = near, .head = near}, key.caret);
    }
    default:
        return false;
    }
}

bool PageKeys::copiesWhole(const BlockPlace &block, const EditorKey &key)
{
    const TextAddress passage{.blockID = block.id()};
    const BlockSelection whole{.anchor = {.passage = passage, .offset = 0},
                               .head = {.passage = passage, .offset = 1}};
    return selection().select(whole) && changeSelection(key);
}

bool PageKeys::inRow(const QUuid &blockID, const EditorKey &key)
{
    switch (key.action) {
    case EditorAction::undo:
        editor().undo();
        return true;
    case EditorAction::redo:
        editor().redo();
        return true;
    case EditorAction::paste:
        return editor().pastePicture(blockID.toString(QUuid::WithoutBraces));
    case EditorAction::moveBlockUp:
        return moveBlock(blockID, -1);
    case EditorAction::moveBlockDown:
        return moveBlock(blockID, 1);
    case EditorAction::openBlockMenu:
        Q_EMIT menuRequested();
        return true;
    case EditorAction::indent:
    case EditorAction::focusNext:
        return walk(true);
    case EditorAction::unindent:
    case EditorAction::focusPrevious:
        return walk(false);
    default:
        return false;
    }
}

bool PageKeys::moveBlock(const QUuid &blockID, int rows)
{
    editor().moveBlock(blockID.toString(QUuid::WithoutBraces), rows);
    Q_EMIT keyPressed();
    return true;
}

bool PageKeys::walk(bool forward)
{
    Q_EMIT walkRequested(forward);
    return true;
}

bool PageKeys::unused(const QKeyEvent &event)
{
    const EditorKey key = editorKey(event);
    if (key.action != EditorAction::insertText)
        return false;
    if (selection().isCrossing())
        return changeSelection(key);
    editor().keys()->writeBelow();
    QQuickItem *field = m_page.view()->window()->activeFocusItem();
    if (field && m_page.isField(*field))
        QCoreApplication::sendEvent(field, std::unique_ptr<QEvent>(event.clone()).get());
    return true;
}

bool PageKeys::inSelection(const EditorKey &key)
{
    if (key.action != EditorAction::moveCaret)
        return changeSelection(key);
    const bool collapses =
        !key.caret.extends && (key.caret.move == CaretMove::left || key.caret.move == CaretMove::right);
    if (!collapses)
        return go(*selection().selection(), key.caret);
    collapse(key.caret.move == CaretMove::right);
    return true;
}

bool PageKeys::changeSelection(const EditorKey &key)
{
    switch (key.action) {
    case EditorAction::copy:
        selection().copy();
        return true;
    case EditorAction::cut:
        selection().cut();
        return true;
    case EditorAction::paste:
        selection().paste();
        return true;
    case EditorAction::selectAll:
        selectPage();
        return true;
    case EditorAction::deleteBackward:
    case EditorAction::deleteForward:
    case EditorAction::deleteRangeBackward:
    case EditorAction::deleteRangeForward:
        selection().remove();
        return true;
    case EditorAction::newBlock:
        selection().split();
        return true;
    case EditorAction::newLine:
        selection().breakLine();
        return true;
    case EditorAction::insertText:
        selection().replace(key.text);
        return true;
    case EditorAction::indent:
    case EditorAction::unindent:
    case EditorAction::focusNext:
    case EditorAction::focusPrevious:
        m_page.giveUp();
        return false;
    default:
        return false;
    }
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
