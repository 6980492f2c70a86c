#pragma once

#include <QRect>

/// Where a panel of `size` goes that is opened at `opener`, on a screen with `room` to use: centred below
/// what opened it, or above in the lower half of the screen, and moved until all of it can be seen.
QPoint panelPosition(const QRect &opener, QSize size, const QRect &room);
