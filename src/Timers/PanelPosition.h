#pragma once

#include <QRect>

/// Returns the top left corner for a panel of `size` that `opener` opens: centred below it, or above it in
/// the lower half of the screen, and moved into the available geometry `room`.
QPoint panelPosition(const QRect &opener, QSize size, const QRect &room);
