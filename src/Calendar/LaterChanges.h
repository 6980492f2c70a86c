#pragma once

#include "Calendar/CalendarEntry.h"

#include <map>

/// What all occurrences of a series from one on were changed to, as they count for one entry of it.
class LaterChanges
{
public:
    LaterChanges(const CalendarEntry &entry, const QList<CalendarEntry> &changes);

    /// The change that holds for what the entry had at a wall time; null where none does.
    const CalendarEntry *at(qint64 wall) const;
    /// By how much such a change moves what it holds for.
    qint64 shiftOf(const CalendarEntry &change) const;
    /// By how much the entry can be moved at most, or take longer than it did.
    qint64 reach() const;

private:
    const CalendarEntry &m_entry;
    std::map<qint64, const CalendarEntry *> m_changes; // by the wall time from which on they hold
};
