#include "Calendar/LaterChanges.h"

#include <algorithm>
#include <cstdlib>

namespace
{
/// What a clock of the entry's zone shows at a time of another.
qint64 wallOf(const CalendarTime &time, const CalendarEntry &entry)
{
    return time.isDay ? time.wall : entry.start.zone->wall(time.utc());
}
} // namespace

LaterChanges::LaterChanges(const CalendarEntry &entry, const QList<CalendarEntry> &changes) : m_entry(entry)
{
    for (const CalendarEntry &change : changes) {
        if (change.isForFuture)
            m_changes.emplace(wallOf(*change.recurrenceId, entry), &change);
    }
}

const CalendarEntry *LaterChanges::at(qint64 wall) const
{
    const auto next = m_changes.upper_bound(wall);
    return next == m_changes.begin() ? nullptr : std::prev(next)->second;
}

qint64 LaterChanges::shiftOf(const CalendarEntry &change) const
{
    return wallOf(change.start, m_entry) - wallOf(*change.recurrenceId, m_entry);
}

qint64 LaterChanges::reach() const
{
    qint64 reach = 0;
    for (const auto &[wall, change] : m_changes)
        reach = std::max(reach, std::abs(shiftOf(*change)) + change->length().roughSeconds());
    return reach;
}
