#pragma once

#include "CaretTravel.h"
#include "Editor/BlockSelection.h"

class BlockPlace;
class FieldCaret;
class PageCaret;
class PageSelection;
class QInputMethodEvent;
class QKeyEvent;

/// What the keyboard does to the caret and the selection of a page. The functions for events tell whether the
/// event has done its work; what a field can do by itself is left to it.
class PageKeys
{
public:
    explicit PageKeys(PageCaret &page) : m_page(page), m_travel(page) {}

    bool pressed(FieldCaret &field, const QKeyEvent &event);
    bool pressed(const BlockPlace &block, const QKeyEvent &event);
    /// An input method composes over the selection.
    bool composed(QInputMethodEvent &event);

private:
    bool pressedWhileSelected(const QKeyEvent &event);
    /// The keys that end or leave a line settle the composition and do nothing more.
    static bool pressedWhileComposing(const FieldCaret &field, const QKeyEvent &event);
    bool change(const QKeyEvent &event);
    /// Copy, Cut and Paste in one text. A field by itself would turn some characters into others.
    bool usesPasteboard(const BlockSelection &selected, const QKeyEvent &event);
    /// Copy and Cut take the block as a whole.
    bool copies(const BlockPlace &block, const QKeyEvent &event);
    bool go(const BlockSelection &from, const CaretKey &key);
    void collapse(bool toEnd);
    void selectPage();
    PageSelection &selection() const;

    PageCaret &m_page;
    CaretTravel m_travel;
};
