#include "Calendar/CalendarContents.h"

#include <algorithm>

namespace
{
CalendarEvent eventFrom(const Occurrence &occurrence)
{
    CalendarEvent event{.title = occurrence.title,
                        .start = Timestamp(occurrence.start) - referenceDate,
                        .end = Timestamp(occurrence.end) - referenceDate};
    if (!occurrence.identifier.isEmpty())
        event.identifier = QString::fromUtf8(occurrence.identifier);
    return event;
}
} // namespace

CalendarContents::CalendarContents(const CalendarWindow &window, QSet<QByteArray> except)
    : m_except(std::move(except))
    , m_range{.from = window.from + referenceDate, .to = window.to + referenceDate}
    , m_zones(window.zone)
    , m_reader(m_zones, [this](CalendarEntry &&entry) { keep(std::move(entry)); })
{
}

void CalendarContents::read(QByteArrayView text)
{
    m_reader.read(text);
}

void CalendarContents::keep(CalendarEntry &&entry)
{
    if (!isNear(entry) || m_except.contains(entry.uid))
        return;
    std::size_t place = m_series.size();
    if (!entry.uid.isEmpty())
        place = m_places.insert(entry.uid, m_places.value(entry.uid, place)).value();
    if (place == m_series.size())
        m_series.emplace_back();
    m_series[place].add(std::move(entry));
}

/// A cheap test with the wall time, which differs from UTC by less than a day. Most entries are long past.
bool CalendarContents::isNear(const CalendarEntry &entry) const
{
    constexpr qint64 slack = 2 * 86400;
    if (entry.repeats() || entry.recurrenceId)
        return true;
    const qint64 end = entry.end ? entry.end->wall : entry.start.wall + entry.span.roughSeconds();
    const auto earliest = double(entry.start.wall - slack);
    const auto latest = double(std::max(entry.start.wall, end) + slack);
    return earliest < m_range.to && latest > m_range.from;
}

QList<CalendarEvent> CalendarContents::events(const IsCancelled &isCancelled) const
{
    QList<CalendarEvent> events;
    for (const bool repeating : {false, true}) {
        for (const EventSeries &series : m_series) {
            if (series.repeats() != repeating)
                continue;
            if (isCancelled())
                return events;
            for (const Occurrence &occurrence : series.occurrences(m_range, isCancelled))
                events.append(eventFrom(occurrence));
        }
    }
    return events;
}
