#pragma once

#include "CaretTravel.h"
#include "Editor/BlockSelection.h"

class BlockPlace;
class EditorViewModel;
class FieldCaret;
class PageFields;
class PageSelection;
class QInputMethodEvent;
class QKeyEvent;
struct EditorKey;

/// Does on a page what its keys ask for. The functions for events tell whether the event has done its work;
/// what a field or a control can do by itself is left to it.
class PageKeys : public QObject
{
    Q_OBJECT

public:
    explicit PageKeys(PageFields &page);

    /// Pressed in a field.
    bool pressed(FieldCaret &field, const QKeyEvent &event);
    /// Pressed in the row of a block, in no field of it.
    bool pressed(const BlockPlace &block, const QKeyEvent &event);
    /// Used by nothing on the page: what is typed goes on at the end of the page.
    bool unused(const QKeyEvent &event);
    /// An input method composes over the selection.
    bool composed(QInputMethodEvent &event);

Q_SIGNALS:
    /// The writer pressed a key, so the caret has to be in sight.
    void keyPressed();
    /// The keyboard goes on to the next control of the row that has the focus, or to the next row.
    void walkRequested(bool forward);
    /// The menu of the block that has the focus is to be opened.
    void menuRequested();

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

    PageFields &m_page;
    CaretTravel m_travel;
};
