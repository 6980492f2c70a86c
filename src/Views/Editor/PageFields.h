#pragma once

#include "Editor/EditorViewModel.h"
#include "PageLayout.h"
#include "PageMembers.h"

#include <QPointer>
#include <QQuickItem>

class BlockPlace;
class FieldCaret;

/// The fields and blocks of a page that the view has created, and their common caret and selection.
class PageFields : public QObject, public PageLayout
{
    Q_OBJECT

public:
    using QObject::QObject;

    EditorViewModel *editor() const { return m_editor; }
    void setEditor(EditorViewModel *editor);
    PageSelection &selection() const { return *m_selection; }
    /// The scrolling view that contains the fields.
    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view) { m_view = view; }
    void setPageStep(qreal step) { m_pageStep = step; }

    void add(FieldCaret &field);
    void add(BlockPlace &block);

    const Passages &passages() const override { return m_selection->passages(); }
    const QTextDocument *textOf(const TextAddress &address) override;
    QPointF originOf(const TextAddress &address) override;
    std::optional<PagePosition> nearest(QPointF point, bool onlyInText) const override;
    qreal pageStep() const override { return m_pageStep; }
    qreal scrollBy(qreal distance) override;

    bool isField(const QQuickItem &item) const;
    /// Returns the block whose row contains the item, or nullptr.
    const BlockPlace *blockAround(const QQuickItem &item) const;
    /// Returns the field that has the focus, or had it last; nullptr if it has left the page.
    FieldCaret *current() const;

    /// Puts the caret at the position; a block without text gets the focus as a whole.
    void place(const PagePosition &position);
    /// Selects and moves the caret.
    void select(const BlockSelection &selection);
    /// Selects without moving the focus.
    void show(const BlockSelection &selection);
    /// Selects from the caret to the position nearest to a point in the view. A passage without text is
    /// selected as a whole. Returns false if there is no caret.
    bool extendTo(QPointF point);
    /// Commits the preedit text of an input method.
    void settle() const;
    /// Clears the selection and leaves the caret.
    void giveUp();
    /// Call it when a field gets the focus.
    void entered(FieldCaret &field);

Q_SIGNALS:
    /// The view must create the row and the field of this text and scroll to it.
    void rowNeeded(const TextAddress &address);
    void showRequested(QQuickItem *item);
    void scrollRequested(qreal distance);

private:
    /// Returns the field of the text, creating its row if needed; nullptr for a passage without text.
    FieldCaret *field(const TextAddress &address);
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
};
