#pragma once

#include "Editor/BlockSelection.h"

#include <QPointF>
#include <QPointer>

class FieldCaret;
class PageFields;
class QMouseEvent;

/// Selects with the pointer over several fields. While the pointer is in the field where it was pressed, that
/// field selects by itself. The functions return whether an event was handled.
class PointerSelection : public QObject
{
    Q_OBJECT

public:
    explicit PointerSelection(PageFields &page) : m_page(page) {}

    bool pressed(FieldCaret &field, QMouseEvent &event);
    bool moved(const FieldCaret &field, const QMouseEvent &event);
    bool released();
    /// The middle button was released: pastes the primary selection there.
    bool pastes(FieldCaret &field, const QMouseEvent &event);

    /// The distance of the pointer beyond an edge of the view in device-independent pixels; negative above.
    qreal pull() const { return m_pull; }
    /// Continues with the position under the pointer after scrolling.
    void carryOn();

Q_SIGNALS:
    void pullChanged();

private:
    bool extendFrom(const FieldCaret &field, QMouseEvent &event);
    void dragTo(const PagePosition &head);
    void setPull(qreal pull);

    PageFields &m_page;
    /// The field where the button was pressed.
    QPointer<FieldCaret> m_owner;
    QPointer<FieldCaret> m_pressed;
    /// The selection of the press itself: a position, a word or a line.
    PagePosition m_start;
    PagePosition m_end;
    bool m_isFresh = false;
    bool m_isDragging = false;
    QPointF m_pointer;
    qreal m_pull = 0;
};
