#pragma once

#include "Calendar/CalendarEntry.h"

#include <map>

/// What all occurrences of a series from one on were changed to, as they count for one entry of it.
class ThisAndFutureOverrides
{
public:
    ThisAndFutureOverrides(const CalendarEntry &entry, const QList<CalendarEntry> &changes);

    /// The change that holds for what the entry had at a wall time; null where none does.
    const CalendarEntry *at(qint64 wall) const;
    /// By how much such a change moves what it holds for.
    qint64 shiftOf(const CalendarEntry &change) const;
    /// By how much a change moves the entry at most, up to a year.
    qint64 farthestShift() const;
    /// How long the entry takes at most after a change.
    qint64 longest() const;

private:
    const CalendarEntry &m_entry;
    std::map<qint64, const CalendarEntry *> m_changes; // by the wall time from which on they hold
};
