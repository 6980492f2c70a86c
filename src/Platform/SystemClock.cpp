#include "Platform/SystemClock.h"

#include <chrono>

Timestamp SystemClock::now() const
{
    using namespace std::chrono;
    constexpr sys_days referenceDate = 2001y / January / 1;
    // Subtracted while still whole numbers: a double of seconds since 1970 has fewer digits to spare.
    return duration<double>(system_clock::now() - referenceDate).count();
}

QTimeZone SystemClock::timeZone() const
{
    return QTimeZone::systemTimeZone();
}
