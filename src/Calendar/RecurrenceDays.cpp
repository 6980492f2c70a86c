#include "Calendar/RecurrenceDays.h"

#include <libical/ical.h>

#include <algorithm>
#include <cstdlib>
#include <span>

namespace
{
constexpr int yearsUntilDatesRepeat = 400;

/// The values of one part of a rule, which end in a mark.
template <std::size_t size>
std::span<const short> values(const short (&part)[size])
{
    std::size_t count = 0;
    while (count < size && part[count] != ICAL_RECURRENCE_ARRAY_MAX)
        ++count;
    return {part, count};
}

/// Whether one of the values names a place among `count`, from the front or from the back. No values name
/// all.
bool names(std::span<const short> values, int place, int count)
{
    return values.empty() || std::ranges::any_of(values, [place, count](short value) {
               return value > 0 ? value == place : value + count + 1 == place;
           });
}

/// The days of one rule, looked at one by one.
class RuleDays
{
public:
    RuleDays(const icalrecurrencetype &rule, QDate start)
        : m_rule(rule)
        , m_start(start)
        , m_months(values(rule.by_month))
        , m_monthDays(values(rule.by_month_day))
        , m_yearDays(values(rule.by_year_day))
        , m_weeks(values(rule.by_week_no))
        , m_weekDays(values(rule.by_day))
        , m_isMonthly(rule.freq == ICAL_MONTHLY_RECURRENCE)
    {
    }

    /// Days are left out by nothing but the rhythm: the first time is one of them.
    bool isPlain() const
    {
        return !hasDays() && m_months.empty() && m_weeks.empty() && values(m_rule.by_set_pos).empty();
    }

    bool isOn(QDate day) const
    {
        return names(m_months, day.month(), 0) && names(m_monthDays, day.day(), day.daysInMonth()) &&
               names(m_yearDays, day.dayOfYear(), day.daysInYear()) && isInWeek(day) && isOnWeekDay(day) &&
               (hasDays() || isLikeStart(day));
    }

    /// As many days of the month or year as some choice among them asks for.
    bool hasChoice(QDate first, int length) const
    {
        const auto positions = values(m_rule.by_set_pos);
        int found = 0;
        for (int index = 0; index < length; ++index) {
            found += isOn(first.addDays(index)) ? 1 : 0;
            if (found > 0 && names(positions, found, 0))
                return true;
        }
        return std::ranges::any_of(positions, [found](short value) { return value < 0 && -value <= found; });
    }

private:
    bool hasDays() const { return !m_monthDays.empty() || !m_yearDays.empty() || !m_weekDays.empty(); }

    /// What the rule leaves open it takes from the first time.
    bool isLikeStart(QDate day) const
    {
        if (!m_weeks.empty())
            return day.dayOfWeek() == m_start.dayOfWeek();
        return day.day() == m_start.day() &&
               (m_isMonthly || !m_months.empty() || day.month() == m_start.month());
    }

    bool isInWeek(QDate day) const
    {
        // The weeks of a rule may begin on any day, so its neighbours are let through.
        const int week = day.weekNumber();
        return m_weeks.empty() || std::ranges::any_of(m_weeks, [week](short value) {
                   const int distance = std::abs((value > 0 ? value : value + 54) - week);
                   return distance <= 1 || distance >= 51;
               });
    }

    bool isOnWeekDay(QDate day) const
    {
        return m_weekDays.empty() || std::ranges::any_of(m_weekDays, [&](short value) {
                   const int weekDay = icalrecurrencetype_day_day_of_week(value); // Sunday is the first
                   return weekDay == day.dayOfWeek() % 7 + 1 &&
                          isNthOfItsKind(day, icalrecurrencetype_day_position(value));
               });
    }

    bool isNthOfItsKind(QDate day, int position) const
    {
        if (position == 0 || !m_weeks.empty())
            return true;
        const bool isOfMonth = m_isMonthly || !m_months.empty();
        const int place = isOfMonth ? day.day() : day.dayOfYear();
        const int count = isOfMonth ? day.daysInMonth() : day.daysInYear();
        return position == (position > 0 ? (place - 1) / 7 + 1 : -((count - place) / 7 + 1));
    }

    const icalrecurrencetype &m_rule;
    QDate m_start;
    std::span<const short> m_months;
    std::span<const short> m_monthDays;
    std::span<const short> m_yearDays;
    std::span<const short> m_weeks;
    std::span<const short> m_weekDays;
    bool m_isMonthly;
};
} // namespace

bool comesTrue(const icalrecurrencetype &rule, QDate start)
{
    const RuleDays days(rule, start);
    if (days.isPlain())
        return true;
    const bool isMonthly = rule.freq == ICAL_MONTHLY_RECURRENCE;
    const QDate end = start.addYears(yearsUntilDatesRepeat);
    QDate first(start.year(), isMonthly ? start.month() : 1, 1);
    while (first < end) {
        if (days.hasChoice(first, isMonthly ? first.daysInMonth() : first.daysInYear()))
            return true;
        first = isMonthly ? first.addMonths(rule.interval) : first.addYears(rule.interval);
    }
    return false;
}
