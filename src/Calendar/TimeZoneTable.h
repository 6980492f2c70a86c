#pragma once

#include "Calendar/CalendarTime.h"
#include "Calendar/ContentLines.h"
#include "Calendar/VTimeZone.h"

#include <QHash>

/// The zones that calendars name: those of the system under their own names, the names that Windows has for
/// them, and the paths that some programs put before them. Everything else is looked up in the calendar
/// itself, and what is not described there hangs where the user is.
class TimeZoneTable
{
public:
    explicit TimeZoneTable(const QTimeZone &local);

    /// Forgets what the last text said of its own zones.
    void beginText() { m_written.clear(); }

    std::shared_ptr<const TimeZone> local() const { return m_local; }
    std::shared_ptr<const TimeZone> utc() const { return m_utc; }
    std::shared_ptr<const TimeZone> named(QByteArrayView name);

    /// What a text says of a zone, even after the first time in it.
    void describe(QByteArrayView name, const std::vector<Observance> &observances);

    /// The time a line of a calendar gives.
    std::optional<CalendarTime> time(const ContentLine &line, QByteArrayView value);

private:
    std::shared_ptr<VTimeZone> written(const QByteArray &name);

    std::shared_ptr<const TimeZone> m_local;
    std::shared_ptr<const TimeZone> m_utc;
    QHash<QByteArray, std::shared_ptr<const TimeZone>> m_system; // null where the system has none
    QHash<QByteArray, std::shared_ptr<VTimeZone>> m_written;
};

/// The zone of the system that a calendar means by a name; invalid where it knows none.
QTimeZone systemZone(const QByteArray &name);
