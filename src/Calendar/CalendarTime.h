#pragma once

#include "Calendar/TimeZone.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// A time as calendars write it: what a clock on some wall shows, or a whole day.
struct CalendarTime {
    /// Seconds since 1970 as if the clock hung in Greenwich; the midnight of a day.
    qint64 wall = 0;
    bool isDay = false;
    /// Where the clock hangs; never null.
    std::shared_ptr<const TimeZone> zone = nullptr;

    qint64 utc() const { return zone->utc(wall); }
};

/// How long something takes: days, which clocks may make longer or shorter, and seconds.
struct CalendarDuration {
    qint64 days = 0;
    qint64 seconds = 0;

    bool operator==(const CalendarDuration &) const = default;

    qint64 roughSeconds() const { return days * 86400 + seconds; }
    /// The moment at which what begins at `wall` in a zone is over; never before it began.
    qint64 endUtc(qint64 wall, const TimeZone &zone) const;
};

/// From one time to another, which is not before it; of days, at least one.
CalendarDuration durationBetween(const CalendarTime &start, const CalendarTime &end);

/// "20261121" or "20261121T093000", with or without a "Z", as seconds.
struct ParsedTime {
    qint64 wall = 0;
    bool isDay = false;
    bool isUtc = false;

    static std::optional<ParsedTime> parse(QByteArrayView text);
};

/// "PT1H30M", "P1D", "P2W", with a sign before it or none. What lasts for more than a hundred years is cut.
std::optional<CalendarDuration> parseDuration(QByteArrayView text);
