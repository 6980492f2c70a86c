#pragma once

#include "Calendar/CalendarTime.h"
#include "Calendar/RecurrenceRule.h"

#include <QList>
#include <QString>

/// Another time at which an entry takes place, and how long it takes then if that differs.
struct RecurrenceDate {
    CalendarTime start;
    std::optional<CalendarDuration> span = std::nullopt;
};

/// One event as a calendar has it written down: by itself, the first of a series, or what one occurrence of a
/// series was changed to.
struct CalendarEntry {
    QByteArray uid = {};
    std::optional<QString> title = std::nullopt;
    CalendarTime start = {};
    /// How long it takes where no end is told.
    CalendarDuration span = {};
    std::optional<CalendarTime> end = std::nullopt;
    bool isCancelled = false;

    QList<RecurrenceRule> rules = {};
    QList<RecurrenceDate> recurrenceDates = {};
    QList<CalendarTime> exceptions = {};

    /// The time of the occurrence that this takes the place of, and of all later ones where it says so.
    std::optional<CalendarTime> recurrenceId = std::nullopt;
    bool isThisAndFuture = false;

    bool repeats() const { return !rules.isEmpty() || !recurrenceDates.isEmpty(); }
    /// Between start and end. Not to be asked for before the whole text was read: its zones may come last.
    CalendarDuration length() const { return end ? durationBetween(start, *end) : span; }
};
