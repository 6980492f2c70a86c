#pragma once

#include "PageFields.h"
#include "PageKeyFilter.h"
#include "PageKeys.h"
#include "PageListener.h"
#include "PointerSelection.h"

/// The caret and the selection of a page, for QML. Each block is a field of its own, which handles what stays
/// within it; this class handles keys and pointer events that leave a field.
class PageCaret : public PageListener
{
    Q_OBJECT
    Q_PROPERTY(EditorViewModel *editor READ editor WRITE setEditor NOTIFY editorChanged REQUIRED)
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged REQUIRED)
    Q_PROPERTY(qreal pageStep READ pageStep WRITE setPageStep NOTIFY pageStepChanged REQUIRED)
    Q_PROPERTY(qreal pull READ pull NOTIFY pullChanged)
    QML_ELEMENT

public:
    explicit PageCaret(QObject *parent = nullptr);

    EditorViewModel *editor() const { return m_fields.editor(); }
    void setEditor(EditorViewModel *editor);
    /// The scrolling view that contains the fields.
    QQuickItem *view() const { return m_fields.view(); }
    void setView(QQuickItem *view);
    /// The distance of Page Up and Page Down in device-independent pixels.
    qreal pageStep() const { return m_fields.pageStep(); }
    void setPageStep(qreal step);
    /// The distance of a selecting pointer beyond an edge of the view in device-independent pixels; negative
    /// above.
    qreal pull() const { return m_pointer.pull(); }

    void add(FieldCaret &field) override { m_fields.add(field); }
    void add(BlockPlace &block) override { m_fields.add(block); }
    void entered(FieldCaret &field) override { m_fields.entered(field); }
    bool handle(FieldCaret &field, QEvent &event) override;
    void offer(const FieldCaret &field) override;

    /// Shift and a click outside of text: selects from the caret to the nearest position, including a block
    /// without text as a whole. `point` is in the view's coordinates. Returns false if there is no caret.
    Q_INVOKABLE bool extendTo(QPointF point) { return m_fields.extendTo(point); }
    /// Call it when the view has scrolled under the pointer.
    Q_INVOKABLE void carryOn() { m_pointer.carryOn(); }

Q_SIGNALS:
    void editorChanged();
    void viewChanged();
    void pageStepChanged();
    void pullChanged();
    /// The view must create the row and the field of this text and scroll to it.
    void rowNeeded(const TextAddress &address);
    void showRequested(QQuickItem *item);
    void scrollRequested(qreal distance);
    /// A key was pressed; the caret must be visible.
    void keyPressed();
    /// The focus must go to the next control of its row, or to the next row.
    void walkRequested(bool forward);
    /// The menu of the block with the focus must be opened.
    void menuRequested();

private:
    PageFields m_fields;
    PageKeys m_keys{m_fields};
    PageKeyFilter m_keyFilter{m_fields, m_keys};
    PointerSelection m_pointer{m_fields};
    /// The last selection that was offered as the primary selection.
    std::optional<BlockSelection> m_offered;
};
