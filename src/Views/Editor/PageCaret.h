#pragma once

#include "Editor/EditorViewModel.h"
#include "PageKeyFilter.h"
#include "PageKeys.h"
#include "PageMembers.h"
#include "PointerSelection.h"

#include <QPointer>
#include <QQuickItem>

class BlockPlace;
class FieldCaret;

/// The one caret and the one selection of a page whose blocks are fields of their own. What stays within a
/// field is left to it; what leads out of it happens here.
class PageCaret : public QObject
{
    Q_OBJECT
    Q_PROPERTY(EditorViewModel *editor READ editor WRITE setEditor NOTIFY editorChanged REQUIRED)
    Q_PROPERTY(QQuickItem *view READ viewItem WRITE setView NOTIFY viewChanged REQUIRED)
    Q_PROPERTY(qreal pageStep MEMBER m_pageStep REQUIRED)
    Q_PROPERTY(qreal pull READ pull NOTIFY pullChanged)
    QML_ELEMENT

public:
    explicit PageCaret(QObject *parent = nullptr);

    EditorViewModel *editor() const { return m_editor; }
    void setEditor(EditorViewModel *editor);
    PageSelection *selection() const { return m_selection; }
    /// The scrolling view that the fields stand in.
    QQuickItem &view() const { return *m_view; }
    QQuickItem *viewItem() const { return m_view; }
    void setView(QQuickItem *view);
    /// How far the keys that turn a page go.
    qreal pageStep() const { return m_pageStep; }
    /// How far the pointer has pulled a selection over an edge of the view; negative above.
    qreal pull() const { return m_pointer.pull(); }
    PageKeys &keys() { return m_keys; }
    PointerSelection &pointer() { return m_pointer; }

    void add(FieldCaret &field);
    void add(BlockPlace &block);

    /// The field of that passage, for which the view makes the row if need be; null for one without text.
    FieldCaret *field(const TextAddress &passage);
    bool isField(const QQuickItem &item) const;
    /// The block in whose row that item is; null outside of all rows.
    const BlockPlace *blockAround(const QQuickItem &item) const;
    /// The field that has the focus, or had it last; null when it has left the page.
    FieldCaret *current() const;
    /// The place on the page, among the rows that the view has made, nearest to a point in the view.
    std::optional<PagePosition> nearest(QPointF point, bool onlyInText) const;

    /// Puts the caret there; in a block without text, the focus on its control.
    void place(const PagePosition &position);
    /// Selects, and moves the caret along.
    void select(const BlockSelection &selection);
    /// Selects, and leaves the focus where it is.
    void show(const BlockSelection &selection);

    /// Shift and a click on something that is not text: selects from where the caret is to what is nearest to
    /// a point in the view, with all of it. Tells whether there is a caret.
    Q_INVOKABLE bool extendTo(QPointF point);

    /// What an input method is composing on the page becomes part of the text.
    void settle() const;
    /// Selects nothing any more, and leaves the caret where it is.
    void giveUp();
    /// A field got the focus.
    void entered(FieldCaret &field);
    /// The view has scrolled under the pointer.
    Q_INVOKABLE void carryOn() { m_pointer.carryOn(); }

Q_SIGNALS:
    void editorChanged();
    void viewChanged();
    void pullChanged();
    /// The row and the field of that text have to be made and brought into sight.
    void rowNeeded(const TextAddress &address);
    void showRequested(QQuickItem *item);
    void scrollRequested(qreal distance);
    /// The writer pressed a key, so the caret has to be in sight.
    void keyPressed();
    /// The keyboard goes on to the next control of the row that has the focus, or to the next row.
    void walkRequested(bool forward);
    /// The menu of the block that has the focus is to be opened.
    void menuRequested();

private:
    void focus(FieldCaret &field);
    void focusBlock(const QUuid &blockID);
    void showSelection();

    QPointer<EditorViewModel> m_editor;
    QPointer<PageSelection> m_selection;
    QPointer<QQuickItem> m_view;
    qreal m_pageStep = 0;
    PageMembers<FieldCaret> m_fields;
    PageMembers<BlockPlace> m_blocks;
    QPointer<FieldCaret> m_current;
    bool m_isMoving = false;
    PageKeys m_keys{*this};
    PageKeyFilter m_keyFilter{*this};
    PointerSelection m_pointer{*this};
};
