#pragma once

class QQuickWindow;

/// Deletes the items of `window`, topmost first, before the window itself. The destructor of the window
/// deletes its parts first, and an item that loses the focus after that would use them.
void tearDownScene(QQuickWindow &window);
