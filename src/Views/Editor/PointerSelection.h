#pragma once

#include "Editor/BlockSelection.h"

#include <QPointF>
#include <QPointer>

class FieldCaret;
class PageFields;
class QMouseEvent;

/// Selects with the pointer what lies between two fields. As long as the pointer is in the field it was
/// pressed in, that field selects by itself. The functions tell whether an event has done its work.
class PointerSelection : public QObject
{
    Q_OBJECT

public:
    explicit PointerSelection(PageFields &page) : m_page(page) {}

    bool pressed(FieldCaret &field, QMouseEvent &event);
    bool moved(const FieldCaret &field, const QMouseEvent &event);
    bool released();
    /// The middle button pastes what was selected last, where it is let go.
    bool pastes(FieldCaret &field, const QMouseEvent &event);

    /// How far the pointer is over an edge of the view, in device-independent pixels; negative above.
    qreal pull() const { return m_pull; }
    /// Goes on to what has come under the pointer.
    void carryOn();

Q_SIGNALS:
    void pullChanged();

private:
    bool extendFrom(const FieldCaret &field, QMouseEvent &event);
    void dragTo(const PagePosition &head);
    void setPull(qreal pull);

    PageFields &m_page;
    /// Pressed in it, and it knows of that.
    QPointer<FieldCaret> m_owner;
    QPointer<FieldCaret> m_pressed;
    /// What the press itself selected: a place, a word or a line.
    PagePosition m_start;
    PagePosition m_end;
    bool m_isFresh = false;
    bool m_isDragging = false;
    QPointF m_pointer;
    qreal m_pull = 0;
};
