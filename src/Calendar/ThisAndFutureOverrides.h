#pragma once

#include "Calendar/CalendarEntry.h"

#include <map>

/// The RANGE=THISANDFUTURE overrides that apply to one entry of a series.
class ThisAndFutureOverrides
{
public:
    ThisAndFutureOverrides(const CalendarEntry &entry, const QList<CalendarEntry> &changes);

    /// Returns the override for the occurrence at a wall time, or nullptr.
    const CalendarEntry *at(qint64 wall) const;
    /// Returns by how many seconds an override moves its occurrences.
    qint64 shiftOf(const CalendarEntry &change) const;
    /// Returns the largest shift in seconds, up to a year.
    qint64 farthestShift() const;
    /// Returns the longest duration of an override, in seconds.
    qint64 longest() const;

private:
    const CalendarEntry &m_entry;
    std::map<qint64, const CalendarEntry *> m_changes; // by the wall time of the first occurrence they change
};
