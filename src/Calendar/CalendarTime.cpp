#include "Calendar/CalendarTime.h"

#include "Calendar/WallTime.h"

#include <algorithm>

namespace
{
constexpr qint64 mostDays = 36525;

std::optional<int> number(QByteArrayView digits)
{
    int result = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        result = result * 10 + (digit - '0');
    }
    return result;
}

std::optional<qint64> secondsOfTime(QByteArrayView digits)
{
    const auto hour = number(digits.first(2));
    const auto minute = number(digits.sliced(2, 2));
    const auto second = number(digits.sliced(4, 2));
    if (!hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 60)
        return std::nullopt;
    return (*hour * 60 + *minute) * 60 + std::min(*second, 59); // a leap second is rounded down
}

std::optional<qint64> midnight(QByteArrayView digits)
{
    const auto year = number(digits.first(4));
    const auto month = number(digits.sliced(4, 2));
    const auto day = number(digits.sliced(6, 2));
    if (!year || !month || !day || !QDate::isValid(*year, *month, *day))
        return std::nullopt;
    return wallOf(QDate(*year, *month, *day));
}

bool addPart(CalendarDuration &span, char unit, qint64 count)
{
    switch (unit) {
    case 'W':
        span.days += 7 * count;
        return true;
    case 'D':
        span.days += count;
        return true;
    case 'H':
        span.seconds += 3600 * count;
        return true;
    case 'M':
        span.seconds += 60 * count;
        return true;
    case 'S':
        span.seconds += count;
        return true;
    default:
        return false;
    }
}
} // namespace

qint64 CalendarDuration::endUtc(qint64 wall, const TimeZone &zone) const
{
    return std::max(zone.utc(wall), zone.utc(wall + days * secondsPerDay) + seconds);
}

CalendarDuration durationBetween(const CalendarTime &start, const CalendarTime &end)
{
    if (start.isDay)
        return {.days = std::max<qint64>(1, (end.wall - start.wall) / 86400)};
    return {.seconds = std::max<qint64>(0, end.utc() - start.utc())};
}

std::optional<ParsedTime> ParsedTime::parse(QByteArrayView text)
{
    text = text.trimmed();
    if (text.size() < 8)
        return std::nullopt;
    const auto day = midnight(text.first(8));
    if (!day)
        return std::nullopt;
    if (text.size() == 8)
        return ParsedTime{.wall = *day, .isDay = true};
    if (text.size() < 15 || (text[8] != 'T' && text[8] != 't'))
        return std::nullopt;
    const auto time = secondsOfTime(text.sliced(9, 6));
    const QByteArrayView zone = text.sliced(15);
    if (!time || (!zone.isEmpty() && zone != "Z" && zone != "z"))
        return std::nullopt;
    return ParsedTime{.wall = *day + *time, .isUtc = !zone.isEmpty()};
}

std::optional<CalendarDuration> parseDuration(QByteArrayView text)
{
    text = text.trimmed();
    const bool isNegative = text.startsWith('-');
    if (isNegative || text.startsWith('+'))
        text = text.sliced(1);
    if (text.size() < 2 || (text.front() != 'P' && text.front() != 'p'))
        return std::nullopt;
    CalendarDuration span;
    qint64 count = 0;
    for (const char letter : text.sliced(1)) {
        if (letter >= '0' && letter <= '9') {
            count = std::min(count * 10 + (letter - '0'), mostDays * secondsPerDay);
        } else if (letter != 'T' && letter != 't') {
            if (!addPart(span, char(letter & ~0x20), count))
                return std::nullopt;
            count = 0;
        }
    }
    const qint64 sign = isNegative ? -1 : 1;
    return CalendarDuration{.days = sign * std::min(span.days, mostDays),
                            .seconds = sign * std::min(span.seconds, mostDays * secondsPerDay)};
}
