#include "PointerSelection.h"

#include "FieldCaret.h"
#include "PageFields.h"
#include "TextLines.h"

#include <QMouseEvent>

#include <algorithm>

bool PointerSelection::pressed(FieldCaret &field, QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    m_pressed = &field;
    m_pointer = m_page.view()->mapFromScene(event.scenePosition());
    if (event.modifiers() & Qt::ShiftModifier && extendFrom(field, event))
        return true;
    m_page.selection().clear();
    m_owner = &field;
    m_isFresh = true;
    m_isDragging = false;
    return false;
}

bool PointerSelection::extendFrom(const FieldCaret &field, QMouseEvent &event)
{
    const auto &selection = m_page.selection().selection();
    const FieldCaret *current = m_page.current();
    const auto head = m_page.nearest(m_pointer, false);
    if (!head || !current || (!selection && current == &field))
        return false;
    m_start =
        selection ? selection->anchor : PagePosition{.passage = current->id(), .offset = current->anchor()};
    m_end = m_start;
    m_owner = nullptr;
    m_isFresh = false;
    m_isDragging = true;
    dragTo(*head);
    event.accept();
    return true;
}

bool PointerSelection::moved(const FieldCaret &field, const QMouseEvent &event)
{
    if (!(event.buttons() & Qt::LeftButton) || m_pressed != &field)
        return false;
    if (m_isFresh) {
        const auto [start, end] = std::minmax({field.anchor(), field.caret()});
        m_start = {.passage = field.id(), .offset = start};
        m_end = {.passage = field.id(), .offset = end};
        m_isFresh = false;
    }
    m_pointer = m_page.view()->mapFromScene(event.scenePosition());
    setPull(std::max(m_pointer.y() - m_page.view()->height(), 0.0) + std::min(m_pointer.y(), 0.0));
    const auto head = m_page.nearest(m_pointer, false);
    if (!head)
        return m_isDragging;
    if (m_owner && head->passage == field.id() && m_pull == 0) {
        m_isDragging = false;
        m_page.selection().clear();
        return false;
    }
    m_isDragging = true;
    dragTo(*head);
    return true;
}

bool PointerSelection::released()
{
    const bool wasDragging = m_isDragging;
    const auto selection = m_page.selection().selection();
    const bool isOwned = m_owner != nullptr;
    m_pressed = nullptr;
    m_owner = nullptr;
    m_isDragging = false;
    setPull(0);
    if (wasDragging && selection)
        m_page.select(*selection);
    return wasDragging && !isOwned;
}

bool PointerSelection::pastes(FieldCaret &field, const QMouseEvent &event)
{
    if (event.button() != Qt::MiddleButton)
        return false;
    const int offset = TextLines::nearest(field.text(), event.position());
    if (!m_page.selection().pasteSelectedText({.passage = field.id(), .offset = offset}))
        return false;
    field.takeFocus();
    return true;
}

void PointerSelection::carryOn()
{
    const auto head = m_isDragging ? m_page.nearest(m_pointer, false) : std::nullopt;
    if (head)
        dragTo(*head);
}

void PointerSelection::dragTo(const PagePosition &head)
{
    const Passages &passages = m_page.selection().passages();
    const qsizetype here = passages.indexOf(head.passage);
    const qsizetype origin = passages.indexOf(m_start.passage);
    const bool forward = here == origin ? head.offset >= m_start.offset : here > origin;
    m_page.show({.anchor = forward ? m_start : m_end, .head = head});
}

void PointerSelection::setPull(qreal pull)
{
    if (m_pull == pull)
        return;
    m_pull = pull;
    Q_EMIT pullChanged();
}
