#pragma once

#include "Calendar/CalendarContents.h"

#include <QDateTime>
#include <QTimeZone>

/// Reads calendar texts and returns the events of a time window as short texts.
struct CalendarFixture {
    QTimeZone zone = QTimeZone::utc();
    QDateTime from = QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc());
    QDateTime to = from.addDays(1);

    CalendarWindow window() const { return {.from = timestamp(from), .to = timestamp(to), .zone = zone}; }

    /// Sets the window from one local midnight to another.
    void look(QDate first, QDate end)
    {
        from = QDateTime(first, QTime(0, 0), zone);
        to = QDateTime(end, QTime(0, 0), zone);
    }

    QList<CalendarEvent> events(const QByteArray &text) const
    {
        CalendarContents contents(window());
        contents.read(text);
        return contents.events([] { return false; });
    }

    /// Returns each event as "21 09:30 Breakfast" in local time, sorted by start.
    QStringList told(const QByteArray &text) const
    {
        QList<CalendarEvent> found = events(text);
        std::ranges::stable_sort(found, {}, &CalendarEvent::start);
        QStringList told;
        for (const CalendarEvent &event : std::as_const(found)) {
            const auto time =
                QDateTime::fromMSecsSinceEpoch(qint64((event.start + referenceDate) * 1000), zone);
            told << time.toString(QStringLiteral("dd HH:mm ")) + event.title.value_or(QStringLiteral("-"));
        }
        return told;
    }

    static Timestamp timestamp(const QDateTime &time)
    {
        return Timestamp(time.toMSecsSinceEpoch()) / 1000 - referenceDate;
    }
};

/// Returns an event of a calendar, without the enclosing VCALENDAR lines.
inline QByteArray eventText(const QByteArray &lines)
{
    return "BEGIN:VEVENT\r\n" + lines + "\r\nEND:VEVENT\r\n";
}

inline QByteArray calendarText(const QByteArray &components)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + components + "END:VCALENDAR\r\n";
}
