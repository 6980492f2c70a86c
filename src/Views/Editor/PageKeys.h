#pragma once

#include "CaretTravel.h"
#include "Editor/BlockSelection.h"

class BlockPlace;
class EditorViewModel;
class FieldCaret;
class PageCaret;
class PageSelection;
class QInputMethodEvent;
class QKeyEvent;
struct EditorKey;

/// Does on a page what its keys ask for. The functions for events tell whether the event has done its work;
/// what a field or a control can do by itself is left to it.
class PageKeys
{
public:
    explicit PageKeys(PageCaret &page) : m_page(page), m_travel(page) {}

    /// Pressed in a field.
    bool pressed(FieldCaret &field, const QKeyEvent &event);
    /// Pressed in the row of a block, in no field of it.
    bool pressed(const BlockPlace &block, const QKeyEvent &event);
    /// Used by nothing on the page: what is typed goes on at the end of the page.
    bool unused(const QKeyEvent &event);
    /// An input method composes over the selection.
    bool composed(QInputMethodEvent &event);

private:
    /// The keys that end or leave a line settle the composition and do nothing more.
    static bool settles(const FieldCaret &field, const EditorKey &key);
    bool inSelection(const EditorKey &key);
    bool changeSelection(const EditorKey &key);
    bool inText(FieldCaret &field, const EditorKey &key);
    /// On a block that has the focus as a whole.
    bool onWhole(const BlockPlace &block, const EditorKey &key);
    /// In the row of that block, whatever has the focus there.
    bool inRow(const QUuid &blockID, const EditorKey &key);
    bool copiesWhole(const BlockPlace &block, const EditorKey &key);
    bool moveBlock(const QUuid &blockID, int rows);
    bool walk(bool forward);
    bool go(const BlockSelection &from, const CaretKey &key);
    void collapse(bool toEnd);
    void selectPage();
    PageSelection &selection() const;
    EditorViewModel &editor() const;

    PageCaret &m_page;
    CaretTravel m_travel;
};
