#include "Calendar/RecurrenceRule.h"

#include "Calendar/RecurrencePeriods.h"
#include "Calendar/WallTime.h"

#include <algorithm>

namespace
{
constexpr int mostTimes = 10'000;
constexpr int mostPeriods = 1'000'000;
constexpr int mostEmptyPeriods = 50'000; // in a row
} // namespace

std::optional<RecurrenceRule> RecurrenceRule::parse(QByteArrayView text)
{
    const auto parts = RecurrenceParts::parse(text);
    return parts ? std::optional(RecurrenceRule(*parts)) : std::nullopt;
}

RecurrenceRule::RecurrenceRule(const RecurrenceParts &parts)
    : m_parts(std::make_shared<const RecurrenceParts>(parts))
{
}

bool RecurrenceRule::isYearly() const
{
    return m_parts->frequency == RecurrenceParts::Frequency::yearly;
}

std::optional<qint64> RecurrenceRule::until(const CalendarTime &start) const
{
    const auto &until = m_parts->until;
    if (!until)
        return std::nullopt;
    if (until->isDay)
        return until->wall + secondsPerDay - 1;
    return until->isUtc ? start.zone->wall(until->wall) : until->wall;
}

std::vector<qint64> RecurrenceRule::times(const CalendarTime &start, const Range &range,
                                          const IsCancelled &isCancelled) const
{
    std::vector<qint64> times;
    const qint64 last = std::min(range.to - 1, until(start).value_or(range.to));
    const qint64 first = std::max(range.from, start.wall);
    if (last < first || (start.isDay && m_parts->isWithinDay()))
        return times;
    RecurrencePeriods periods(*m_parts, start);
    if (!m_parts->count) // with COUNT, all times from the start must be counted
        periods.skipTo(first);
    int found = 0;
    int empty = 0;
    for (int period = 0; period < mostPeriods && periods.begin() <= last && !isCancelled(); ++period) {
        const auto named = periods.takeTimes();
        if (!named)
            return {};
        empty = named->empty() ? empty + 1 : 0;
        if (empty > mostEmptyPeriods)
            break;
        for (const qint64 time : *named) {
            if (time < start.wall)
                continue;
            if (time > last || found >= std::min(mostTimes, m_parts->count.value_or(mostTimes)))
                return times;
            if (time >= first)
                times.push_back(time);
            if (time >= first || m_parts->count)
                ++found;
        }
    }
    return times;
}
