#include "BlockPlace.h"

#include <QQuickWindow>

void BlockPlace::componentComplete()
{
    m_page->add(*this);
}

void BlockPlace::setCovered(bool covered)
{
    if (m_isCovered == covered)
        return;
    m_isCovered = covered;
    Q_EMIT coveredChanged();
}

const QQuickItem *BlockPlace::focused() const
{
    return isOnPage() ? m_item->window()->activeFocusItem() : nullptr;
}

bool BlockPlace::hasFocus() const
{
    const QQuickItem *item = focused();
    return item && (item == m_item || item == m_control);
}

bool BlockPlace::hasFocusItself() const
{
    return m_item && focused() == m_item;
}

void BlockPlace::takeFocus() const
{
    if (m_control)
        m_control->forceActiveFocus(Qt::TabFocusReason);
}
