#pragma once

#include "Calendar/CalendarEntry.h"
#include "Calendar/TimeZoneTable.h"

#include <functional>

/// An event of which the end was not read yet.
struct EventDraft {
    CalendarEntry entry = {};
    bool hasStart = false;
    bool hasSpan = false;
};

/// A zone of which the end was not read yet.
struct ZoneDraft {
    QByteArray name = {};
    std::vector<Observance> observances = {};
    bool isInObservance = false;
};

/// Reads the events of a calendar's text, one after the other: whole calendars and single events alike. An
/// event that does not end, or that does not say when it begins, is left out, and so is everything else there
/// may be in a text; nothing in it makes the reading fail, or take longer than its length.
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
    int m_depth = 0; // of what is inside the event: alarms, and whatever else
};
