#include "KeyWatcher.h"

#include "KeyText.h"

#include <QGuiApplication>
#include <QQuickWindow>

void KeyWatcher::setActive(bool active)
{
    if (m_isActive == active)
        return;
    m_isActive = active;
    // An input method sends its events to the focused item directly.
    if (active)
        qGuiApp->installEventFilter(this);
    else
        qGuiApp->removeEventFilter(this);
    Q_EMIT activeChanged();
}

bool KeyWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched == window())
        Q_EMIT pressed(writesText(*static_cast<QKeyEvent *>(event)));
    else if (event->type() == QEvent::InputMethod && window() && watched == window()->activeFocusItem())
        Q_EMIT pressed(true);
    return false;
}
