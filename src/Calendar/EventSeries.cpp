#include "Calendar/EventSeries.h"

#include "Calendar/ExceptionDates.h"
#include "Calendar/ThisAndFutureOverrides.h"
#include "Calendar/WallTime.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{
/// Sorts pointers, because GCC warns about an uninitialised optional title when values are sorted.
QList<Occurrence> byStartWithoutDuplicates(const QList<Occurrence> &occurrences)
{
    QList<const Occurrence *> order;
    for (const Occurrence &occurrence : occurrences)
        order.append(&occurrence);
    std::ranges::stable_sort(order, {}, &Occurrence::start);
    QList<Occurrence> sorted;
    for (const Occurrence *occurrence : std::as_const(order)) {
        if (sorted.isEmpty() || sorted.last() != *occurrence)
            sorted.append(*occurrence);
    }
    return sorted;
}
} // namespace

void EventSeries::add(CalendarEntry entry)
{
    (entry.recurrenceId ? m_changes : m_entries).append(std::move(entry));
}

bool EventSeries::repeats() const
{
    return !m_changes.isEmpty() || std::ranges::any_of(m_entries, &CalendarEntry::repeats);
}

QList<Occurrence> EventSeries::occurrences(const TimeRange &span, const IsCancelled &isCancelled) const
{
    QList<Occurrence> found;
    // A cancelled master cancels the whole series, also the overridden occurrences.
    if (!m_entries.isEmpty() && std::ranges::all_of(m_entries, &CalendarEntry::isCancelled))
        return found;
    for (const CalendarEntry &entry : m_entries) {
        if (!entry.isCancelled)
            addRepeated(found, entry, span, isCancelled);
    }
    for (const CalendarEntry &change : m_changes) {
        const qint64 start = change.start.utc();
        if (!change.isCancelled)
            addIfOverlapping(found, span,
                             {start, change.length().endUtc(change.start.wall, *change.start.zone),
                              change.title, identifierAt(change, start)});
    }
    return byStartWithoutDuplicates(found);
}

void EventSeries::addRepeated(QList<Occurrence> &found, const CalendarEntry &entry, const TimeRange &span,
                              const IsCancelled &isCancelled) const
{
    const Instances all = instances(entry, span, isCancelled);
    const ThisAndFutureOverrides later(entry, m_changes);
    for (auto instance = all.begin(); instance != all.end(); ++instance) {
        const CalendarEntry *change = later.at(instance.key());
        if (change && change->isCancelled)
            continue;
        const qint64 wall = instance.key() + (change ? later.shiftOf(*change) : 0);
        const CalendarDuration length = change ? change->length() : instance.value();
        const qint64 start = entry.start.zone->utc(wall);
        addIfOverlapping(found, span,
                         {start, length.endUtc(wall, *entry.start.zone), change ? change->title : entry.title,
                          identifierAt(entry, start)});
    }
}

/// Returns the occurrences of one entry near the range, without excluded and overridden ones.
EventSeries::Instances EventSeries::instances(const CalendarEntry &entry, const TimeRange &span,
                                              const IsCancelled &isCancelled) const
{
    const TimeZone &zone = *entry.start.zone;
    const CalendarDuration length = entry.length();
    const ThisAndFutureOverrides later(entry, m_changes);
    qint64 longest = std::max(length.roughSeconds(), later.longest());
    for (const RecurrenceDate &extra : entry.recurrenceDates)
        longest = std::max(longest, extra.span.value_or(length).roughSeconds());
    const qint64 slack = later.farthestShift() + secondsPerDay;
    const RecurrenceRule::Range range{.from = zone.wall(qint64(std::floor(span.from))) - longest - slack,
                                      .to = zone.wall(qint64(std::ceil(span.to))) + slack};
    Instances all{{entry.start.wall, length}};
    for (const RecurrenceRule &rule : entry.rules) {
        for (const qint64 wall : rule.times(entry.start, range, isCancelled))
            all.insert(wall, length);
    }
    for (const RecurrenceDate &extra : entry.recurrenceDates)
        all.insert(extra.start.isDay ? extra.start.wall : zone.wall(extra.start.utc()),
                   extra.span.value_or(length));

    ExceptionDates elsewhere(entry.start);
    for (const CalendarTime &time : entry.exceptions)
        elsewhere.add(time);
    for (const CalendarEntry &change : m_changes)
        elsewhere.add(*change.recurrenceId);
    all.removeIf([&](const auto &instance) {
        return instance.key() < range.from || instance.key() >= range.to ||
               elsewhere.contains(instance.key());
    });
    return all;
}

void EventSeries::addIfOverlapping(QList<Occurrence> &found, const TimeRange &span,
                                   const Occurrence &occurrence)
{
    if (span.overlaps(occurrence.start, occurrence.end))
        found.append(occurrence);
}

QByteArray EventSeries::identifierAt(const CalendarEntry &entry, qint64 start) const
{
    if (entry.uid.isEmpty() || !repeats())
        return entry.uid;
    return entry.uid + '/' + QByteArray::number(start);
}
