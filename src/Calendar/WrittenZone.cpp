#include "Calendar/WrittenZone.h"

#include <algorithm>

namespace
{
constexpr qint64 twoYears = qint64(86400) * 731;

/// How far ahead of the world's clocks those of a zone stay.
class FixedZone : public WallZone
{
public:
    explicit FixedZone(qint64 offset) : m_offset(offset) {}

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
        const CalendarTime first{.wall = start, .zone = std::make_shared<FixedZone>(offsetBefore)};
        const qint64 end = std::min(wall, rule->until(first).value_or(wall));
        const auto times = rule->times(first, {.from = end - twoYears, .to = end + 1}, [] { return false; });
        if (!times.empty())
            last = std::max(last, times.back());
    }
    return last - offsetBefore;
}

void WrittenZone::setObservances(std::vector<Observance> observances)
{
    m_observances = std::move(observances);
    // A zone is asked for every event; what never comes true is looked for once.
    for (Observance &observance : m_observances) {
        if (observance.rule && !observance.rule->comesTrue(observance.start))
            observance.rule.reset();
    }
    std::ranges::stable_sort(m_observances, {}, &Observance::start);
}

qint64 WrittenZone::offsetAt(qint64 utc) const
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
