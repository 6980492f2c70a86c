#pragma once

#include "Calendar/CalendarReader.h"
#include "Calendar/EventSeries.h"
#include "Services/CalendarStore.h"

#include <QSet>

/// The events of one calendar, read from one or more iCalendar texts. Keeps only what can affect the events
/// in a time window.
class CalendarContents
{
public:
    /// Skips events with the UIDs in `except`, which another calendar has.
    explicit CalendarContents(const CalendarWindow &window, QSet<QByteArray> except = {});
    Q_DISABLE_COPY_MOVE(CalendarContents)

    void read(QByteArrayView text);

    /// Returns the events that overlap the window: first the single ones, then the recurring ones, each in
    /// the order in which they were read. After cancellation, returns the events found so far.
    QList<CalendarEvent> events(const IsCancelled &isCancelled) const;

    /// The UIDs of the events that were kept.
    QSet<QByteArray> uids() const { return {m_places.keyBegin(), m_places.keyEnd()}; }

private:
    void keep(CalendarEntry &&entry);
    bool isNear(const CalendarEntry &entry) const;

    const QSet<QByteArray> m_except;
    TimeRange m_range;
    TimeZoneTable m_zones;
    CalendarReader m_reader;
    std::vector<EventSeries> m_series;
    QHash<QByteArray, std::size_t> m_places; // in m_series, by the UID
};
