#include "Timers/PanelPosition.h"

namespace
{
constexpr int gap = 8;

/// Returns the start of a span within the room. A span that does not fit is aligned to the start of the room.
int inside(int start, int length, int roomStart, int roomLength)
{
    return qMax(roomStart, qMin(start, roomStart + roomLength - length));
}
} // namespace

QPoint panelPosition(const QRect &opener, QSize size, const QRect &room)
{
    const bool opensUpwards = opener.center().y() > room.center().y();
    const int x = opener.x() + (opener.width() - size.width()) / 2;
    const int y = opensUpwards ? opener.y() - gap - size.height() : opener.y() + opener.height() + gap;
    return {inside(x, size.width(), room.x() + gap, room.width() - 2 * gap),
            inside(y, size.height(), room.y() + gap, room.height() - 2 * gap)};
}
