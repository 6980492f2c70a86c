#include "Models/LocalTime.h"

#include <algorithm>
#include <cmath>

QDateTime localTime(Timestamp time, const QTimeZone &zone)
{
    constexpr double edge = 8.64e15;
    const double milliseconds = std::clamp(std::floor((time + referenceDate) * 1000), -edge, edge);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds), zone);
}

Timestamp timestampOf(const QDateTime &time)
{
    return static_cast<double>(time.toMSecsSinceEpoch()) / 1000 - referenceDate;
}
