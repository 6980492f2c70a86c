#include "WindowConfigView.h"

#include <QQuickWindow>

WindowConfigView::WindowConfigView(QQuickItem *parent) : QQuickItem(parent) {}

void WindowConfigView::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange && data.window && isComponentComplete())
        configureWindow();
}

void WindowConfigView::componentComplete()
{
    QQuickItem::componentComplete();
    if (window())
        configureWindow();
}

void WindowConfigView::configureWindow()
{
    // Moving by the background needs the pointer's press: WindowDragArea does it. A Mac keeps its title bar:
    // the buttons on it are the only ones there.
#ifndef Q_OS_DARWIN
    window()->setFlag(Qt::FramelessWindowHint);
#endif
    QColor opaque = m_background;
    opaque.setAlpha(255);
    window()->setColor(opaque);
}
