#include "PageCaret.h"

#include "FieldCaret.h"

#include <utility>

PageCaret::PageCaret(QObject *parent) : PageListener(parent)
{
    connect(&m_fields, &PageFields::rowNeeded, this, &PageCaret::rowNeeded);
    connect(&m_fields, &PageFields::showRequested, this, &PageCaret::showRequested);
    connect(&m_fields, &PageFields::scrollRequested, this, &PageCaret::scrollRequested);
    connect(&m_keys, &PageKeys::keyPressed, this, &PageCaret::keyPressed);
    connect(&m_keys, &PageKeys::walkRequested, this, &PageCaret::walkRequested);
    connect(&m_keys, &PageKeys::menuRequested, this, &PageCaret::menuRequested);
    connect(&m_pointer, &PointerSelection::pullChanged, this, &PageCaret::pullChanged);
}

void PageCaret::setEditor(EditorViewModel *editor)
{
    if (m_fields.editor() == editor)
        return;
    m_fields.setEditor(editor);
    Q_EMIT editorChanged();
}

void PageCaret::setView(QQuickItem *view)
{
    if (m_fields.view() == view)
        return;
    m_fields.setView(view);
    m_keyFilter.watch(*view);
    Q_EMIT viewChanged();
}

void PageCaret::setPageStep(qreal step)
{
    if (m_fields.pageStep() == step)
        return;
    m_fields.setPageStep(step);
    Q_EMIT pageStepChanged();
}

void PageCaret::offer(const FieldCaret &field)
{
    const PageSelection &selection = m_fields.selection();
    if (selection.isCrossing())
        return;
    const BlockSelection selected = field.selection();
    if (std::exchange(m_offered, selected) != selected)
        selection.offerText(selected);
}

bool PageCaret::handle(FieldCaret &field, QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
        return m_keys.pressed(field, static_cast<QKeyEvent &>(event));
    case QEvent::InputMethod:
        return m_keys.composed(static_cast<QInputMethodEvent &>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_fields.settle();
        return m_pointer.pressed(field, static_cast<QMouseEvent &>(event));
    case QEvent::MouseMove:
        return m_pointer.moved(field, static_cast<QMouseEvent &>(event));
    case QEvent::MouseButtonRelease:
        return m_pointer.pastes(field, static_cast<QMouseEvent &>(event)) || m_pointer.released();
    case QEvent::UngrabMouse:
        return m_pointer.released();
    default:
        return false;
    }
}
