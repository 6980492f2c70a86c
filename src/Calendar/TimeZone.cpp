#include "Calendar/TimeZone.h"

#include <QDateTime>

qint64 TimeZone::utc(qint64 wall) const
{
    constexpr qint64 day = 86400; // clocks do not change twice within two days
    const qint64 before = offsetAt(wall - day);
    const qint64 after = offsetAt(wall + day);
    if (before == after || offsetAt(wall - before) == before || offsetAt(wall - after) != after)
        return wall - before;
    return wall - after;
}

SystemTimeZone::SystemTimeZone(const QTimeZone &zone) : m_zone(zone), m_isUtc(zone == QTimeZone::utc()) {}

qint64 SystemTimeZone::offsetAt(qint64 utc) const
{
    return m_isUtc ? 0 : m_zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(utc, QTimeZone::utc()));
}
