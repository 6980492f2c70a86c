#pragma once

#include "Editor/EditorViewModel.h"
#include "PageLayout.h"
#include "PageMembers.h"

#include <QPointer>
#include <QQuickItem>

class BlockPlace;
class FieldCaret;

/// The fields and blocks of a page that the view has made, with the one caret and the one selection that they
/// share.
class PageFields : public QObject, public PageLayout
{
    Q_OBJECT

public:
    using QObject::QObject;

    EditorViewModel *editor() const { return m_editor; }
    void setEditor(EditorViewModel *editor);
    PageSelection &selection() const { return *m_selection; }
    /// The scrolling view that the fields stand in.
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
    /// The block in whose row that item is; null outside of all rows.
    const BlockPlace *blockAround(const QQuickItem &item) const;
    /// The field that has the focus, or had it last; null when it has left the page.
    FieldCaret *current() const;

    /// Puts the caret there; in a block without text, the focus on its control.
    void place(const PagePosition &position);
    /// Selects, and moves the caret along.
    void select(const BlockSelection &selection);
    /// Selects, and leaves the focus where it is.
    void show(const BlockSelection &selection);
    /// Selects from where the caret is to what is nearest to a point in the view. A passage without text is
    /// selected as a whole. Returns whether there is a caret.
    bool extendTo(QPointF point);
    /// What an input method is composing on the page becomes part of the text.
    void settle() const;
    /// Selects nothing any more, and leaves the caret where it is.
    void giveUp();
    /// A field got the focus.
    void entered(FieldCaret &field);

Q_SIGNALS:
    /// The row and the field of that text have to be made and brought into sight.
    void rowNeeded(const TextAddress &address);
    void showRequested(QQuickItem *item);
    void scrollRequested(qreal distance);

private:
    /// The field of that text, for which the view makes the row if need be; null for a passage without text.
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
