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
    // Moving by the background needs the pointer's press: WindowDragArea does it.
    window()->setFlag(Qt::FramelessWindowHint);
    QColor opaque = m_background;
    opaque.setAlpha(255);
    window()->setColor(opaque);
}
