#pragma once

#include "Calendar/CalendarEntry.h"

#include <unordered_set>

/// Times that are named by other entries of a series: left out of it or replaced. A day names whatever takes
/// place on it.
class ExceptionDates
{
public:
    explicit ExceptionDates(CalendarTime start) : m_start(std::move(start)) {}

    void add(const CalendarTime &time);

    /// Whether what takes place at a wall time in the zone of the series is named.
    bool contains(qint64 wall) const;

private:
    CalendarTime m_start;
    std::unordered_set<qint64> m_moments;
    std::unordered_set<qint64> m_days;
};
