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

/// Runs the actions of the editor's keys on the page. The functions for events return whether the event was
/// handled; what a field or a control can do by itself is left to it.
class PageKeys : public QObject
{
    Q_OBJECT

public:
    explicit PageKeys(PageFields &page);

    /// A key was pressed in a field.
    bool pressed(FieldCaret &field, const QKeyEvent &event);
    /// A key was pressed in the row of a block, outside of its fields.
    bool pressed(const BlockPlace &block, const QKeyEvent &event);
    /// A key was not accepted by any item of the page. Typed text is added at the end of the page.
    bool unused(const QKeyEvent &event);
    /// An input method composes while there is a selection over several passages.
    bool composed(QInputMethodEvent &event);

Q_SIGNALS:
    /// A key was pressed; the caret must be visible.
    void keyPressed();
    /// The focus must go to the next control of its row, or to the next row.
    void walkRequested(bool forward);
    /// The menu of the block with the focus must be opened.
    void menuRequested();

private:
    /// Returns whether the key ends or leaves the line; it then only commits preedit text.
    static bool settles(const FieldCaret &field, const EditorKey &key);
    bool inSelection(const EditorKey &key);
    bool changeSelection(const EditorKey &key);
    bool inText(FieldCaret &field, const EditorKey &key);
    /// Handles a key on a block that has the focus as a whole.
    bool onWhole(const BlockPlace &block, const EditorKey &key);
    /// Handles a key in the row of the block, whatever has the focus there.
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
