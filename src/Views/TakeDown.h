#pragma once

class QQuickWindow;

/// Deletes what stands in `window`, uppermost first, while the window lives. Left to the window, items would
/// outlive parts of it wherever an effect holds one of them, and the focus they lose is announced through
/// those parts.
void takeDown(QQuickWindow &window);
