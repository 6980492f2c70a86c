#include "BlockPlace.h"

#include "PageCaret.h"

#include <QQuickWindow>

void BlockPlace::componentComplete()
{
    m_item->installEventFilter(this);
    m_page->add(*this);
}

void BlockPlace::setCovered(bool covered)
{
    if (m_isCovered == covered)
        return;
    m_isCovered = covered;
    Q_EMIT coveredChanged();
}

bool BlockPlace::hasFocus() const
{
    const QQuickItem *focused = isOnPage() ? m_item->window()->activeFocusItem() : nullptr;
    return focused && (focused == m_item || focused == m_control);
}

void BlockPlace::takeFocus() const
{
    if (m_control)
        m_control->forceActiveFocus(Qt::TabFocusReason);
}

bool BlockPlace::eventFilter(QObject *, QEvent *event)
{
    // Keys that a field or a control has left unused come by here as well.
    const bool isMine = event->type() == QEvent::KeyPress && hasFocus();
    return isMine && m_page->keys().pressed(*this, *static_cast<QKeyEvent *>(event));
}
