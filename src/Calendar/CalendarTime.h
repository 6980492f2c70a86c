#pragma once

#include "Calendar/TimeZone.h"

#include <QByteArray>

#include <memory>
#include <optional>

/// A DATE or DATE-TIME value: a wall time or a whole day.
struct CalendarTime {
    /// Seconds since 1970-01-01 00:00 on the clocks of the zone; midnight for a whole day.
    qint64 wall = 0;
    bool isDay = false;
    /// The time zone of `wall`; never null.
    std::shared_ptr<const TimeZone> zone = nullptr;

    qint64 utc() const { return zone->utc(wall); }
};

/// A duration in calendar days, whose length depends on daylight saving time, plus seconds.
struct CalendarDuration {
    qint64 days = 0;
    qint64 seconds = 0;

    bool operator==(const CalendarDuration &) const = default;

    qint64 roughSeconds() const { return days * 86400 + seconds; }
    /// Returns the end, in UTC seconds, of an event that starts at `wall` in the zone; not before its start.
    qint64 endUtc(qint64 wall, const TimeZone &zone) const;
};

/// Returns the duration from `start` to `end`, not negative; for dates at least one day.
CalendarDuration durationBetween(const CalendarTime &start, const CalendarTime &end);

/// A parsed DATE or DATE-TIME value: "20261121" or "20261121T093000", with or without "Z". Seconds since
/// 1970.
struct ParsedTime {
    qint64 wall = 0;
    bool isDay = false;
    bool isUtc = false;

    static std::optional<ParsedTime> parse(QByteArrayView text);
};

/// "PT1H30M", "P1D", "P2W", with an optional sign. Durations are limited to a hundred years.
std::optional<CalendarDuration> parseDuration(QByteArrayView text);
