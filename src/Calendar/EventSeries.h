#pragma once

#include "Calendar/CalendarEntry.h"

#include <QMap>

/// A stretch of time in seconds of the world's clock, its end not included.
struct TimeRange {
    double from = 0;
    double to = 0;

    /// What takes no time at all overlaps where it is.
    bool overlaps(qint64 start, qint64 end) const
    {
        return double(start) < to && (double(end) > from || double(start) >= from);
    }
};

/// One time at which something takes place.
struct Occurrence {
    qint64 start = 0;
    qint64 end = 0;
    std::optional<QString> title = std::nullopt;
    QByteArray identifier = {};

    bool operator==(const Occurrence &) const = default;
};

/// All entries of one UID: something that happens once or again and again, and what single occurrences of it,
/// or all from one on, were changed to.
class EventSeries
{
public:
    void add(CalendarEntry entry);

    /// Takes place at more than the one time it was entered for, or was changed.
    bool repeats() const;

    /// The occurrences that overlap a span, in the order of their starts. What was cancelled is not among
    /// them.
    QList<Occurrence> occurrences(const TimeRange &span, const IsCancelled &isCancelled) const;

private:
    using Instances = QMap<qint64, CalendarDuration>; // by the wall time in the zone of the entry

    Instances instances(const CalendarEntry &entry, const TimeRange &span,
                        const IsCancelled &isCancelled) const;
    void addRepeated(QList<Occurrence> &found, const CalendarEntry &entry, const TimeRange &span,
                     const IsCancelled &isCancelled) const;
    static void addIfOverlapping(QList<Occurrence> &found, const TimeRange &span,
                                 const Occurrence &occurrence);
    QByteArray identifierAt(const CalendarEntry &entry, qint64 start) const;

    QList<CalendarEntry> m_entries; // more than one only where somebody made a copy
    QList<CalendarEntry> m_changes;
};
