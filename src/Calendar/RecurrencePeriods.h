#pragma once

#include "Calendar/RecurrenceDays.h"

/// Iterates over the periods of a rule, such as every second week, starting with the period of the first
/// occurrence. Times are wall times, in seconds since 1970. Periods that cannot contain a day are skipped.
class RecurrencePeriods
{
public:
    /// `parts` must outlive this object.
    RecurrencePeriods(const RecurrenceParts &parts, const CalendarTime &start);

    /// Advances to the last period that begins at or before `moment`; never goes back.
    void skipTo(qint64 moment);

    /// The start of the current period; the maximum of qint64 after the last one.
    qint64 begin() const { return m_begin; }

    /// Returns the sorted times of the current period, possibly none, and advances to the next one. Returns
    /// std::nullopt if the period has more times than the limit.
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
