#pragma once

#include "Calendar/CalendarTime.h"
#include "Calendar/RecurrenceRule.h"

#include <QList>
#include <QString>

/// An RDATE: an additional start, and its duration if that differs from the event's.
struct RecurrenceDate {
    CalendarTime start;
    std::optional<CalendarDuration> span = std::nullopt;
};

/// One VEVENT: a single event, the master of a series, or the override of an occurrence.
struct CalendarEntry {
    QByteArray uid = {};
    std::optional<QString> title = std::nullopt;
    CalendarTime start = {};
    /// The duration, used if `end` is not set.
    CalendarDuration span = {};
    std::optional<CalendarTime> end = std::nullopt;
    bool isCancelled = false;

    QList<RecurrenceRule> rules = {};
    QList<RecurrenceDate> recurrenceDates = {};
    QList<CalendarTime> exceptions = {};

    /// The RECURRENCE-ID: the original start of the occurrence that this entry overrides. With
    /// `isThisAndFuture` it overrides all later occurrences too.
    std::optional<CalendarTime> recurrenceId = std::nullopt;
    bool isThisAndFuture = false;

    bool repeats() const { return !rules.isEmpty() || !recurrenceDates.isEmpty(); }
    /// The duration between start and end. Valid once the whole text was read, because its VTIMEZONEs may
    /// come last.
    CalendarDuration length() const { return end ? durationBetween(start, *end) : span; }
};
