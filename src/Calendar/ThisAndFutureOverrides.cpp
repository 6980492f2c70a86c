#include "Calendar/ThisAndFutureOverrides.h"

#include <algorithm>
#include <cstdlib>

namespace
{
/// The largest shift that is supported, one year: the search range grows with it.
constexpr qint64 farthestMove = qint64(86400) * 366;

/// Converts a time to wall time in the entry's zone.
qint64 wallOf(const CalendarTime &time, const CalendarEntry &entry)
{
    return time.isDay ? time.wall : entry.start.zone->wall(time.utc());
}
} // namespace

ThisAndFutureOverrides::ThisAndFutureOverrides(const CalendarEntry &entry,
                                               const QList<CalendarEntry> &changes)
    : m_entry(entry)
{
    for (const CalendarEntry &change : changes) {
        if (change.isThisAndFuture)
            m_changes.emplace(wallOf(*change.recurrenceId, entry), &change);
    }
}

const CalendarEntry *ThisAndFutureOverrides::at(qint64 wall) const
{
    const auto next = m_changes.upper_bound(wall);
    return next == m_changes.begin() ? nullptr : std::prev(next)->second;
}

qint64 ThisAndFutureOverrides::shiftOf(const CalendarEntry &change) const
{
    return wallOf(change.start, m_entry) - wallOf(*change.recurrenceId, m_entry);
}

qint64 ThisAndFutureOverrides::farthestShift() const
{
    qint64 farthest = 0;
    for (const auto &[wall, change] : m_changes)
        farthest = std::max(farthest, std::abs(shiftOf(*change)));
    return std::min(farthest, farthestMove);
}

qint64 ThisAndFutureOverrides::longest() const
{
    qint64 longest = 0;
    for (const auto &[wall, change] : m_changes)
        longest = std::max(longest, change->length().roughSeconds());
    return longest;
}
