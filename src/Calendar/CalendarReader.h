#pragma once

#include "Calendar/CalendarEntry.h"
#include "Calendar/TimeZoneTable.h"

#include <functional>

/// A VEVENT whose END line was not read yet.
struct EventDraft {
    CalendarEntry entry = {};
    bool hasStart = false;
    bool hasSpan = false;
};

/// A VTIMEZONE whose END line was not read yet.
struct ZoneDraft {
    QByteArray name = {};
    std::vector<Observance> observances = {};
    bool isInObservance = false;
};

/// Reads the VEVENTs and VTIMEZONEs of an iCalendar text, with or without an enclosing VCALENDAR. Skips
/// events without END or DTSTART and all other components. Reading cannot fail and takes linear time.
class CalendarReader
{
public:
    using Take = std::function<void(CalendarEntry &&)>;

    CalendarReader(TimeZoneTable &zones, Take take) : m_zones(zones), m_take(std::move(take)) {}

    void read(QByteArrayView text);

private:
    void begin(QByteArrayView component);
    void end(QByteArrayView component);
    void readEventLine(const ContentLine &line);
    void readRecurrenceLine(const ContentLine &line);
    void readZoneLine(const ContentLine &line);
    void finishEvent();
    void addRecurrenceDates(const ContentLine &line);
    void addExceptions(const ContentLine &line);

    TimeZoneTable &m_zones;
    Take m_take;
    std::optional<EventDraft> m_event;
    std::optional<ZoneDraft> m_zone;
    int m_depth = 0; // of components nested in the event, such as alarms
};
