#include "Calendar/RecurrenceRule.h"

#include "Calendar/RecurrenceDays.h"

#include <libical/ical.h>

#include <algorithm>
#include <chrono>

namespace
{
constexpr int mostTimes = 10'000;
constexpr qint64 secondsOfDay = 86400;

struct FreeIterator {
    void operator()(icalrecur_iterator *iterator) const { icalrecur_iterator_free(iterator); }
};
using Iterator = std::unique_ptr<icalrecur_iterator, FreeIterator>;

QDate dayOf(qint64 wall)
{
    return QDate(1970, 1, 1)
        .addDays((wall - (wall % secondsOfDay + secondsOfDay) % secondsOfDay) / secondsOfDay);
}

icaltimetype written(qint64 wall, bool isDay)
{
    const QDate day = dayOf(wall);
    const int second = isDay ? 0 : int((wall % secondsOfDay + secondsOfDay) % secondsOfDay);
    icaltimetype time = icaltime_null_time();
    time.year = day.year();
    time.month = day.month();
    time.day = day.day();
    time.hour = second / 3600;
    time.minute = second / 60 % 60;
    time.second = second % 60;
    time.is_date = isDay ? 1 : 0;
    return time;
}

qint64 wallOf(const icaltimetype &time)
{
    using namespace std::chrono;
    const sys_days day = year(time.year) / time.month / time.day;
    return sys_seconds(day).time_since_epoch().count() + (time.hour * 60 + time.minute) * 60 + time.second;
}

template <std::size_t size>
bool isGiven(const short (&part)[size])
{
    return part[0] != ICAL_RECURRENCE_ARRAY_MAX;
}

/// Within one call the library tries one second after the other, months long, for rules like these.
bool takesForever(const icalrecurrencetype &rule)
{
    if (rule.freq > ICAL_HOURLY_RECURRENCE)
        return false;
    const bool isForSomeDays = isGiven(rule.by_month) || isGiven(rule.by_month_day) ||
                               isGiven(rule.by_year_day) || isGiven(rule.by_week_no);
    const bool isForSomeHours = isGiven(rule.by_day) || isGiven(rule.by_hour) || isGiven(rule.by_minute);
    return isForSomeDays || (rule.freq == ICAL_SECONDLY_RECURRENCE && isForSomeHours);
}

bool isOfCommonCalendar(const icalrecurrencetype &rule)
{
    return !rule.rscale || qstricmp(rule.rscale, "GREGORIAN") == 0;
}

/// Where the search may begin: not after a moment, and in step with the first time, which the library loses
/// for rules within a day.
qint64 headStart(const icalrecurrencetype &rule, qint64 first, qint64 moment)
{
    if (rule.freq > ICAL_HOURLY_RECURRENCE)
        return moment;
    const qint64 unit = rule.freq == ICAL_HOURLY_RECURRENCE     ? 3600
                        : rule.freq == ICAL_MINUTELY_RECURRENCE ? 60
                                                                : 1;
    return moment - (moment - first) % (unit * rule.interval);
}

bool isSearchedAtOnce(const icalrecurrencetype &rule)
{
    return rule.freq == ICAL_MONTHLY_RECURRENCE || rule.freq == ICAL_YEARLY_RECURRENCE;
}
} // namespace

std::optional<RecurrenceRule> RecurrenceRule::parse(QByteArrayView text)
{
    // Otherwise the library may end the program at the first wrong letter.
    [[maybe_unused]] static const bool isLenient = (icalerror_set_errors_are_fatal(false), true);
    icalrecurrencetype rule = icalrecurrencetype_from_string(text.toByteArray().constData());
    if (rule.freq >= ICAL_NO_RECURRENCE || rule.interval < 1 || !isOfCommonCalendar(rule) ||
        takesForever(rule))
        return std::nullopt;
    rule.rscale = nullptr; // belongs to the library, and not for long
    return RecurrenceRule(rule);
}

RecurrenceRule::RecurrenceRule(const icalrecurrencetype &rule)
    : m_rule(std::make_shared<const icalrecurrencetype>(rule))
{
}

bool RecurrenceRule::isYearly() const
{
    return m_rule->freq == ICAL_YEARLY_RECURRENCE;
}

bool RecurrenceRule::comesTrue(qint64 start) const
{
    return !isSearchedAtOnce(*m_rule) || ::comesTrue(*m_rule, dayOf(start));
}

std::optional<qint64> RecurrenceRule::until(const CalendarTime &start) const
{
    const icaltimetype &until = m_rule->until;
    if (icaltime_is_null_time(until))
        return std::nullopt;
    if (until.is_date)
        return wallOf(until) + secondsOfDay - 1;
    return icaltime_is_utc(until) ? start.zone->wall(wallOf(until)) : wallOf(until);
}

std::vector<qint64> RecurrenceRule::times(const CalendarTime &start, const Range &range,
                                          const IsGivenUp &isGivenUp) const
{
    const qint64 last = std::min(range.to - 1, until(start).value_or(range.to));
    if (last < range.from || last < start.wall || !comesTrue(start.wall))
        return {};
    icalrecurrencetype rule = *m_rule;
    rule.until = written(last, start.isDay);
    const Iterator iterator(icalrecur_iterator_new(rule, written(start.wall, start.isDay)));
    if (!iterator)
        return {};
    if (rule.count == 0 && range.from > start.wall)
        icalrecur_iterator_set_start(iterator.get(),
                                     written(headStart(rule, start.wall, range.from), start.isDay));
    std::vector<qint64> times;
    for (int round = 0; round < mostTimes && !isGivenUp(); ++round) {
        const icaltimetype time = icalrecur_iterator_next(iterator.get());
        if (icaltime_is_null_time(time) || wallOf(time) > last)
            break;
        if (wallOf(time) >= range.from)
            times.push_back(wallOf(time));
    }
    return times;
}
