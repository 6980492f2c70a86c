#include "Platform/SystemClock.h"

#include <chrono>

Timestamp SystemClock::now() const
{
    using namespace std::chrono;
    // Subtracted while still whole numbers: a double of seconds since 1970 has fewer digits to spare.
    return duration<double>(system_clock::now() - sys_seconds(seconds(qint64(referenceDate)))).count();
}

QTimeZone SystemClock::timeZone() const
{
    return QTimeZone::systemTimeZone();
}
