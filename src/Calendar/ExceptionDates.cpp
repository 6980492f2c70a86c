#include "Calendar/ExceptionDates.h"

namespace
{
/// Returns the number of days since 1970-01-01.
qint64 dayNumber(qint64 wall)
{
    constexpr qint64 day = 86400;
    return wall / day - (wall % day < 0 ? 1 : 0);
}
} // namespace

void ExceptionDates::add(const CalendarTime &time)
{
    if (time.isDay)
        m_days.insert(dayNumber(time.wall));
    else if (m_start.isDay)
        m_days.insert(dayNumber(m_start.zone->wall(time.utc())));
    else
        m_moments.insert(time.utc());
}

bool ExceptionDates::contains(qint64 wall) const
{
    if (!m_days.empty() && m_days.contains(dayNumber(wall)))
        return true;
    return !m_moments.empty() && m_moments.contains(m_start.zone->utc(wall));
}
