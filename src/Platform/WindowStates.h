#pragma once

class QWindow;

bool fillsScreen(const QWindow &window);

/// Makes the window fill the screen, or restores the state before, maximised or normal.
void toggleFullScreen(QWindow &window);

/// Shows the window in front and gives it the keyboard. A maximised or full-screen window keeps its state.
void bringToFront(QWindow &window);
