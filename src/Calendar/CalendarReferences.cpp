#include "Calendar/CalendarReferences.h"

#include "Calendar/ContentLines.h"
#include "Calendar/TimeZoneTable.h"

#include <QSet>

CalendarReferences CalendarReferences::in(QByteArrayView text)
{
    QSet<QByteArray> uids;
    QSet<QByteArray> zones;
    QSet<QByteArray> described;
    QByteArray uid;
    bool repeats = false;
    ContentLines lines(text);
    while (const auto line = lines.next()) {
        if (line->is("BEGIN")) {
            repeats = false;
        } else if (line->is("UID")) {
            uid = line->value.trimmed().toByteArray();
        } else if (line->is("TZID")) {
            described.insert(line->value.trimmed().toByteArray());
        } else if (line->is("RRULE") || line->is("RDATE") || line->is("RECURRENCE-ID")) {
            repeats = true;
        } else if (line->is("END") && repeats) {
            uids.insert(uid);
        }
        if (const auto zone = line->parameter("TZID"))
            zones.insert(zone->toByteArray());
    }
    zones.subtract(described);
    zones.removeIf([](const QByteArray &zone) { return systemZone(zone).isValid(); });
    return {.repeatingUids = uids.values(), .unknownZones = zones.values()};
}
