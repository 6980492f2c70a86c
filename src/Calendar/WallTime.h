#pragma once

#include <QDate>

inline constexpr qint64 secondsPerDay = 86400;

/// The day of a wall time, which is given in seconds since 1970.
inline QDate dayOfWall(qint64 wall)
{
    return QDate(1970, 1, 1).addDays(wall / secondsPerDay - (wall % secondsPerDay < 0 ? 1 : 0));
}

/// The seconds since midnight of a wall time.
inline qint64 secondOfWall(qint64 wall)
{
    return (wall % secondsPerDay + secondsPerDay) % secondsPerDay;
}

/// The midnight that begins a day, as a wall time.
inline qint64 wallOf(QDate day)
{
    return QDate(1970, 1, 1).daysTo(day) * secondsPerDay;
}
