#include "Calendar/VTimeZone.h"

#include <algorithm>

namespace
{
constexpr qint64 twoYears = qint64(86400) * 731;

/// A zone with a constant offset.
class FixedTimeZone : public TimeZone
{
public:
    explicit FixedTimeZone(qint64 offset) : m_offset(offset) {}

    qint64 offsetAt(qint64) const override { return m_offset; }

private:
    qint64 m_offset;
};
} // namespace

std::optional<qint64> Observance::lastBeginning(qint64 utc) const
{
    const qint64 wall = utc + offsetBefore;
    if (wall < start)
        return std::nullopt;
    qint64 last = start;
    for (const qint64 date : dates) {
        if (date <= wall)
            last = std::max(last, date);
    }
    if (rule) {
        const CalendarTime first{.wall = start, .zone = std::make_shared<FixedTimeZone>(offsetBefore)};
        const qint64 end = std::min(wall, rule->until(first).value_or(wall));
        const auto &times = timesAround(first, end);
        const auto next = std::ranges::upper_bound(times, end);
        if (next != times.begin())
            last = std::max(last, *std::prev(next));
    }
    return last - offsetBefore;
}

const std::vector<qint64> &Observance::timesAround(const CalendarTime &first, qint64 wall) const
{
    const qint64 part = wall / twoYears - (wall % twoYears < 0 ? 1 : 0);
    if (part != knownPart) {
        knownTimes = rule->times(first, {.from = (part - 1) * twoYears, .to = (part + 1) * twoYears},
                                 [] { return false; });
        knownPart = part;
    }
    return knownTimes;
}

void VTimeZone::setObservances(std::vector<Observance> observances)
{
    m_observances = std::move(observances);
    std::ranges::stable_sort(m_observances, {}, &Observance::start);
}

qint64 VTimeZone::offsetAt(qint64 utc) const
{
    if (m_observances.empty())
        return m_otherwise->offsetAt(utc);
    qint64 offset = m_observances.front().offsetBefore;
    std::optional<qint64> latest;
    for (const Observance &observance : m_observances) {
        const auto beginning = observance.lastBeginning(utc);
        if (beginning && (!latest || *beginning >= *latest)) {
            latest = beginning;
            offset = observance.offset;
        }
    }
    return offset;
}
