#pragma once

#include "Calendar/RecurrenceDays.h"

/// Walks over the periods of a rule, from the one of the first time on: every second week, each third hour.
/// Times are wall times, in seconds since 1970. Skips what names no day without looking into it.
class RecurrencePeriods
{
public:
    /// `parts` have to live as long.
    RecurrencePeriods(const RecurrenceParts &parts, const CalendarTime &start);

    /// Goes on to the last period that does not begin after `moment`, if that is further on.
    void skipTo(qint64 moment);

    /// When the current period begins. Later than any calendar when there is no further one.
    qint64 begin() const { return m_begin; }

    /// Returns the times that the rule names in the current period, in order, and goes on to the next one.
    /// There may be none. std::nullopt: they are more than anybody would enter, and were not worked out.
    std::optional<std::vector<qint64>> takeTimes();

private:
    using Frequency = RecurrenceParts::Frequency;

    void goTo(qint64 index);
    qint64 beginOf(qint64 index) const;
    void goToFirstAt(qint64 moment);
    std::vector<QDate> days() const;
    std::vector<qint64> takeTimesWithinDay();
    std::optional<std::vector<qint64>> timesOn(const std::vector<QDate> &days) const;
    std::vector<qint64> atPositions(std::vector<qint64> times) const;

    const RecurrenceParts &m_parts;
    RecurrenceDays m_days;
    QDate m_firstDay;
    qint64 m_length = 0; // of the unit of a rule within a day, in seconds
    qint64 m_origin = 0; // of that unit, at the first time
    std::vector<int> m_hours;
    std::vector<int> m_minutes;
    std::vector<int> m_seconds;
    qint64 m_index = 0; // of the current period
    qint64 m_begin = 0;
};
