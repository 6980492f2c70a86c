#pragma once

#include "Calendar/CalendarEntry.h"

#include <QMap>

/// The half-open interval [from, to) in UTC seconds since 1970.
struct TimeRange {
    double from = 0;
    double to = 0;

    /// An event without duration overlaps the interval that contains its start.
    bool overlaps(qint64 start, qint64 end) const
    {
        return double(start) < to && (double(end) > from || double(start) >= from);
    }
};

/// One occurrence of an event; times are UTC seconds since 1970.
struct Occurrence {
    qint64 start = 0;
    qint64 end = 0;
    std::optional<QString> title = std::nullopt;
    QByteArray identifier = {};

    bool operator==(const Occurrence &) const = default;
};

/// All entries of one UID: a single or recurring event and its overrides.
class EventSeries
{
public:
    void add(CalendarEntry entry);

    /// Returns whether the event recurs or has overrides.
    bool repeats() const;

    /// Returns the occurrences that overlap a time range, sorted by start, without cancelled ones.
    QList<Occurrence> occurrences(const TimeRange &span, const IsCancelled &isCancelled) const;

private:
    using Instances = QMap<qint64, CalendarDuration>; // by wall time in the zone of the entry

    Instances instances(const CalendarEntry &entry, const TimeRange &span,
                        const IsCancelled &isCancelled) const;
    void addRepeated(QList<Occurrence> &found, const CalendarEntry &entry, const TimeRange &span,
                     const IsCancelled &isCancelled) const;
    static void addIfOverlapping(QList<Occurrence> &found, const TimeRange &span,
                                 const Occurrence &occurrence);
    QByteArray identifierAt(const CalendarEntry &entry, qint64 start) const;

    QList<CalendarEntry> m_entries; // more than one only in calendars with duplicates
    QList<CalendarEntry> m_changes;
};
