#pragma once

#include "Calendar/CalendarEntry.h"

#include <unordered_set>

/// The occurrences that a rule does not produce: those excluded by EXDATE and those replaced by an override.
/// A DATE value excludes all occurrences on that day.
class ExceptionDates
{
public:
    explicit ExceptionDates(CalendarTime start) : m_start(std::move(start)) {}

    void add(const CalendarTime &time);

    /// Returns whether the occurrence at a wall time in the series' zone is excluded.
    bool contains(qint64 wall) const;

private:
    CalendarTime m_start;
    std::unordered_set<qint64> m_moments;
    std::unordered_set<qint64> m_days;
};
