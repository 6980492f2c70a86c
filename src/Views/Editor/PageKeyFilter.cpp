#include "PageKeyFilter.h"

#include "BlockPlace.h"
#include "PageFields.h"
#include "PageKeys.h"

#include <QQuickWindow>

void PageKeyFilter::watch(QQuickItem &view)
{
    m_view = &view;
    view.installEventFilter(this);
    connect(&view, &QQuickItem::windowChanged, this, &PageKeyFilter::followWindow);
    followWindow(view.window());
}

void PageKeyFilter::followWindow(QQuickWindow *window)
{
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (window)
        connect(window, &QQuickWindow::activeFocusItemChanged, this, &PageKeyFilter::followFocus);
    followFocus();
}

void PageKeyFilter::followFocus()
{
    if (m_focused)
        m_focused->removeEventFilter(this);
    m_focused = m_window ? m_window->activeFocusItem() : nullptr;
    if (!m_focused || !m_view || !m_view->isAncestorOf(m_focused))
        m_focused.clear();
    else
        m_focused->installEventFilter(this);
}

bool PageKeyFilter::pressedOnFocused(const QKeyEvent &event)
{
    if (m_page.isField(*m_focused))
        return false;
    const BlockPlace *block = m_page.blockAround(*m_focused);
    return block && m_keys.pressed(*block, event);
}

bool PageKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    return watched == m_focused ? pressedOnFocused(key) : m_keys.unused(key);
}
