#include "Calendar/RecurrencePeriods.h"

#include "Calendar/WallTime.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr std::size_t mostTimesOfPeriod = 100'000; // in one period
constexpr qint64 lastYear = 9999;
constexpr qint64 never = std::numeric_limits<qint64>::max();

qint64 floorDivided(qint64 value, qint64 divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

std::vector<int> orElse(const std::vector<int> &values, qint64 otherwise)
{
    return values.empty() ? std::vector{int(otherwise)} : values;
}

bool names(const std::vector<int> &values, qint64 value)
{
    return values.empty() || std::ranges::binary_search(values, int(value));
}
} // namespace

RecurrencePeriods::RecurrencePeriods(const RecurrenceParts &parts, const CalendarTime &start)
    : m_parts(parts)
    , m_days(parts, dayOfWall(start.wall))
    , m_firstDay(dayOfWall(start.wall))
{
    const qint64 second = secondOfWall(start.wall);
    // An all-day event has no times of day, so BYHOUR, BYMINUTE and BYSECOND are ignored.
    m_hours = start.isDay ? std::vector{0} : orElse(parts.hours, second / 3600);
    m_minutes = start.isDay ? std::vector{0} : orElse(parts.minutes, second / 60 % 60);
    m_seconds = start.isDay ? std::vector{0} : orElse(parts.seconds, second % 60);
    if (parts.isWithinDay()) {
        m_length = parts.frequency == Frequency::hourly     ? 3600
                   : parts.frequency == Frequency::minutely ? 60
                                                            : 1;
        m_origin = start.wall - (second % m_length);
    }
    goTo(0);
}

void RecurrencePeriods::skipTo(qint64 moment)
{
    const QDate day = dayOfWall(moment);
    qint64 units = 0;
    switch (m_parts.frequency) {
    case Frequency::yearly:
        units = day.year() - m_firstDay.year() - 1; // the weeks of a year may begin in the year before
        break;
    case Frequency::monthly:
        units = (day.year() - m_firstDay.year()) * 12 + day.month() - m_firstDay.month();
        break;
    case Frequency::weekly:
        units = floorDivided(m_firstDay.daysTo(day), 7);
        break;
    case Frequency::daily:
        units = m_firstDay.daysTo(day);
        break;
    default:
        units = floorDivided(moment - m_origin, m_length);
    }
    goTo(std::max(m_index, floorDivided(units, m_parts.interval)));
}

void RecurrencePeriods::goTo(qint64 index)
{
    m_index = index;
    m_begin = beginOf(index);
}

qint64 RecurrencePeriods::beginOf(qint64 index) const
{
    const qint64 units = index * m_parts.interval;
    if (m_parts.isWithinDay())
        return m_origin + units * m_length;
    const qint64 months = m_firstDay.month() - 1 + (m_parts.frequency == Frequency::monthly ? units : 0);
    const qint64 year =
        m_firstDay.year() + months / 12 + (m_parts.frequency == Frequency::yearly ? units : 0);
    if (year >= lastYear || units > lastYear * 366)
        return never;
    switch (m_parts.frequency) {
    case Frequency::yearly:
        return wallOf(m_parts.weeks.empty() ? QDate(int(year), 1, 1) : m_days.firstWeek(int(year)));
    case Frequency::monthly:
        return wallOf(QDate(int(year), int(months % 12) + 1, 1));
    case Frequency::weekly: {
        const int late = (m_firstDay.dayOfWeek() - m_parts.firstDayOfWeek + 7) % 7;
        return wallOf(m_firstDay.addDays(7 * units - late));
    }
    default:
        return wallOf(m_firstDay.addDays(units));
    }
}

std::vector<QDate> RecurrencePeriods::days() const
{
    const QDate day = dayOfWall(m_begin);
    switch (m_parts.frequency) {
    case Frequency::yearly:
        return m_days.inYear(m_firstDay.year() + int(m_index * m_parts.interval));
    case Frequency::monthly:
        return m_days.inMonth(day.year(), day.month());
    case Frequency::weekly:
        return m_days.inWeek(day);
    default:
        return m_days.isOn(day) ? std::vector{day} : std::vector<QDate>();
    }
}

std::optional<std::vector<qint64>> RecurrencePeriods::takeTimes()
{
    if (m_parts.isWithinDay())
        return atPositions(takeTimesWithinDay());
    const auto times = timesOn(days());
    goTo(m_index + 1);
    return times ? std::optional(atPositions(*times)) : std::nullopt;
}

std::optional<std::vector<qint64>> RecurrencePeriods::timesOn(const std::vector<QDate> &days) const
{
    std::vector<qint64> times;
    if (days.size() * m_hours.size() * m_minutes.size() * m_seconds.size() > mostTimesOfPeriod)
        return std::nullopt;
    for (const QDate &day : days) {
        for (const int hour : m_hours) {
            for (const int minute : m_minutes) {
                for (const int second : m_seconds)
                    times.push_back(wallOf(day) + (hour * 60 + minute) * 60 + second);
            }
        }
    }
    return times;
}

std::vector<qint64> RecurrencePeriods::takeTimesWithinDay()
{
    const qint64 begin = m_begin;
    const qint64 second = secondOfWall(begin);
    std::vector<qint64> times;
    if (!m_days.isOn(dayOfWall(begin))) {
        goToFirstAt(begin - second + secondsPerDay);
    } else if (!names(m_parts.hours, second / 3600)) {
        goToFirstAt(begin - second % 3600 + 3600);
    } else if (m_length < 3600 && !names(m_parts.minutes, second / 60 % 60)) {
        goToFirstAt(begin - second % 60 + 60);
    } else if (m_length == 1 && !names(m_parts.seconds, second % 60)) {
        const auto next = std::ranges::upper_bound(m_parts.seconds, int(second % 60));
        goToFirstAt(begin - second % 60 + (next == m_parts.seconds.end() ? 60 : *next));
    } else {
        const std::vector<int> none{0};
        for (const int minute : m_length == 3600 ? m_minutes : none) {
            for (const int more : m_length > 1 ? m_seconds : none)
                times.push_back(begin + minute * 60 + more);
        }
        goTo(m_index + 1);
    }
    return times;
}

void RecurrencePeriods::goToFirstAt(qint64 moment)
{
    const qint64 step = m_length * m_parts.interval;
    goTo(-floorDivided(m_origin - moment, step));
}

std::vector<qint64> RecurrencePeriods::atPositions(std::vector<qint64> times) const
{
    if (m_parts.positions.empty())
        return times;
    std::vector<qint64> chosen;
    for (std::size_t index = 0; index < times.size(); ++index) {
        const auto isAt = [&](int position) {
            return position == int(index) + 1 || position == int(index) - int(times.size());
        };
        if (std::ranges::any_of(m_parts.positions, isAt))
            chosen.push_back(times[index]);
    }
    return chosen;
}
