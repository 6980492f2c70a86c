#pragma once

#include "Calendar/CalendarTime.h"
#include "Calendar/ContentLines.h"
#include "Calendar/VTimeZone.h"

#include <QHash>

/// Resolves TZIDs: IANA ids, also with a path in front, and Windows zone names come from the tz database,
/// other names from the VTIMEZONEs of the text. Unknown names get the local zone.
class TimeZoneTable
{
public:
    explicit TimeZoneTable(const QTimeZone &local);

    /// Forgets the VTIMEZONEs of the previous text.
    void beginText() { m_written.clear(); }

    std::shared_ptr<const TimeZone> local() const { return m_local; }
    std::shared_ptr<const TimeZone> utc() const { return m_utc; }
    std::shared_ptr<const TimeZone> named(QByteArrayView name);

    /// Sets the observances of a VTIMEZONE, also after times that use it were read.
    void describe(QByteArrayView name, const std::vector<Observance> &observances);

    /// Returns the time of a content line, or std::nullopt if it is malformed.
    std::optional<CalendarTime> time(const ContentLine &line, QByteArrayView value);

private:
    std::shared_ptr<VTimeZone> written(const QByteArray &name);

    std::shared_ptr<const TimeZone> m_local;
    std::shared_ptr<const TimeZone> m_utc;
    QHash<QByteArray, std::shared_ptr<const TimeZone>> m_system; // null if the system has no such zone
    QHash<QByteArray, std::shared_ptr<VTimeZone>> m_written;
};

/// Returns the tz database zone for a TZID; invalid if there is none.
QTimeZone systemZone(const QByteArray &name);
