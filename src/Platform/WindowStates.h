#pragma once

class QWindow;

bool fillsScreen(const QWindow &window);

/// Full screen and back, to the state before: a window that was maximised is so again.
void toggleFullScreen(QWindow &window);

/// Shows the window, in front and with the keyboard. One that is maximised or fills the screen stays so.
void bringToFront(QWindow &window);
