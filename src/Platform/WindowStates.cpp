#include "Platform/WindowStates.h"

#include <QWindow>

bool fillsScreen(const QWindow &window)
{
    return window.windowStates().testFlag(Qt::WindowFullScreen);
}

void toggleFullScreen(QWindow &window)
{
    window.setWindowStates(window.windowStates() ^ Qt::WindowFullScreen);
}

void bringToFront(QWindow &window)
{
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    // QWindow::show() would also make it a normal window again.
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}
