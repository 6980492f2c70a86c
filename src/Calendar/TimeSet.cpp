#include "Calendar/TimeSet.h"

namespace
{
qint64 dayOf(qint64 wall)
{
    constexpr qint64 day = 86400;
    return wall / day - (wall % day < 0 ? 1 : 0);
}
} // namespace

void TimeSet::add(const CalendarTime &time)
{
    if (time.isDay)
        m_days.insert(dayOf(time.wall));
    else if (m_start.isDay)
        m_days.insert(dayOf(m_start.zone->wall(time.utc())));
    else
        m_moments.insert(time.utc());
}

bool TimeSet::contains(qint64 wall) const
{
    if (!m_days.empty() && m_days.contains(dayOf(wall)))
        return true;
    return !m_moments.empty() && m_moments.contains(m_start.zone->utc(wall));
}
