#include "Calendar/RecurrenceDays.h"

#include <algorithm>

namespace
{
using Frequency = RecurrenceParts::Frequency;

/// Returns whether a list selects number `place` of `count`; negative values count from the end. An empty
/// list selects all.
bool names(const std::vector<int> &values, int place, int count)
{
    return values.empty() || std::ranges::any_of(values, [place, count](int value) {
               return value > 0 ? value == place : value + count + 1 == place;
           });
}
} // namespace

bool RecurrenceDays::isOn(QDate day) const
{
    // Most lists are empty, and computing the fields of a QDate takes time.
    return (m_parts.months.empty() || names(m_parts.months, day.month(), 12)) &&
           (m_parts.monthDays.empty() || names(m_parts.monthDays, day.day(), day.daysInMonth())) &&
           (m_parts.yearDays.empty() || names(m_parts.yearDays, day.dayOfYear(), day.daysInYear())) &&
           isOnWeekDay(day) && isLikeStart(day);
}

std::vector<QDate> RecurrenceDays::inWeek(QDate first) const
{
    std::vector<QDate> days;
    for (int index = 0; index < 7; ++index) {
        if (const QDate day = first.addDays(index); isOn(day))
            days.push_back(day);
    }
    return days;
}

std::vector<QDate> RecurrenceDays::inMonth(int year, int month) const
{
    std::vector<QDate> days;
    if (!names(m_parts.months, month, 12))
        return days;
    const QDate first(year, month, 1);
    for (int index = 0; index < first.daysInMonth(); ++index) {
        if (const QDate day = first.addDays(index); isOn(day))
            days.push_back(day);
    }
    return days;
}

std::vector<QDate> RecurrenceDays::inYear(int year) const
{
    std::vector<QDate> days;
    if (m_parts.weeks.empty()) {
        for (int month = 1; month <= 12; ++month)
            std::ranges::copy(inMonth(year, month), std::back_inserter(days));
        return days;
    }
    const QDate first = firstWeek(year);
    const int weeks = int(first.daysTo(firstWeek(year + 1)) / 7);
    for (int week = 1; week <= weeks; ++week) {
        if (names(m_parts.weeks, week, weeks))
            std::ranges::copy(inWeek(first.addDays(7 * (week - 1))), std::back_inserter(days));
    }
    return days;
}

QDate RecurrenceDays::firstWeek(int year) const
{
    const QDate day(year, 1, 4); // the first ISO week contains January 4
    return day.addDays(-((day.dayOfWeek() - m_parts.firstDayOfWeek + 7) % 7));
}

bool RecurrenceDays::isLikeStart(QDate day) const
{
    if (!m_parts.monthDays.empty() || !m_parts.yearDays.empty() || !m_parts.weekDays.empty())
        return true;
    if (m_parts.frequency == Frequency::weekly || !m_parts.weeks.empty())
        return day.dayOfWeek() == m_start.dayOfWeek();
    if (m_parts.frequency < Frequency::monthly)
        return true;
    const bool isMonthOpen = m_parts.frequency == Frequency::yearly && m_parts.months.empty();
    return day.day() == m_start.day() && (!isMonthOpen || day.month() == m_start.month());
}

bool RecurrenceDays::isOnWeekDay(QDate day) const
{
    return m_parts.weekDays.empty() || std::ranges::any_of(m_parts.weekDays, [&](const auto &weekDay) {
               return weekDay.day == day.dayOfWeek() && hasPosition(day, weekDay.position);
           });
}

bool RecurrenceDays::hasPosition(QDate day, int position) const
{
    if (position == 0)
        return true;
    const bool isOfMonth = m_parts.frequency == Frequency::monthly || !m_parts.months.empty();
    const int place = isOfMonth ? day.day() : day.dayOfYear();
    const int count = isOfMonth ? day.daysInMonth() : day.daysInYear();
    return position == (position > 0 ? (place - 1) / 7 + 1 : -((count - place) / 7 + 1));
}
