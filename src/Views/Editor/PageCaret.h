#pragma once

#include "PageFields.h"
#include "PageKeyFilter.h"
#include "PageKeys.h"
#include "PageListener.h"
#include "PointerSelection.h"

/// The one caret and the one selection of a page whose blocks are fields of their own, for QML. What stays
/// within a field is left to it; keys and the pointer that lead out of it are handled here.
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
    /// The scrolling view that the fields stand in.
    QQuickItem *view() const { return m_fields.view(); }
    void setView(QQuickItem *view);
    /// How far Page Up and Page Down go, in device-independent pixels.
    qreal pageStep() const { return m_fields.pageStep(); }
    void setPageStep(qreal step);
    /// How far the pointer has pulled a selection over an edge of the view, in device-independent pixels;
    /// negative above.
    qreal pull() const { return m_pointer.pull(); }

    void add(FieldCaret &field) override { m_fields.add(field); }
    void add(BlockPlace &block) override { m_fields.add(block); }
    void entered(FieldCaret &field) override { m_fields.entered(field); }
    bool handle(FieldCaret &field, QEvent &event) override;
    void offer(const FieldCaret &field) override;

    /// Shift and a click on something that is not text: selects from where the caret is to what is nearest to
    /// a point in the view, with all of it. Returns whether there is a caret.
    Q_INVOKABLE bool extendTo(QPointF point) { return m_fields.extendTo(point); }
    /// The view has scrolled under the pointer.
    Q_INVOKABLE void carryOn() { m_pointer.carryOn(); }

Q_SIGNALS:
    void editorChanged();
    void viewChanged();
    void pageStepChanged();
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
    PageFields m_fields;
    PageKeys m_keys{m_fields};
    PageKeyFilter m_keyFilter{m_fields, m_keys};
    PointerSelection m_pointer{m_fields};
    /// What was offered to the middle button last.
    std::optional<BlockSelection> m_offered;
};
