#pragma once

#include "Calendar/CalendarReader.h"
#include "Calendar/EventSeries.h"
#include "Services/CalendarStore.h"

#include <QSet>

/// One calendar, read from one or many texts for the sake of a window of time: what has nothing to do with
/// the window is not kept.
class CalendarContents
{
public:
    /// Leaves out events with the UIDs in `except`: they are known from another calendar.
    explicit CalendarContents(const CalendarWindow &window, QSet<QByteArray> except = {});
    Q_DISABLE_COPY_MOVE(CalendarContents)

    void read(QByteArrayView text);

    /// The events that overlap the window: first those that happen once, then the others, each in the order
    /// in which they were read. Those that are known by the time that all is given up, if it is.
    QList<CalendarEvent> events(const IsCancelled &isCancelled) const;

    /// The UIDs of what was kept.
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
