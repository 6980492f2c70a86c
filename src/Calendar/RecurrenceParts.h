#pragma once

#include "Calendar/CalendarTime.h"

#include <vector>

/// The parts of a recurrence rule, RFC 5545, section 3.3.10. A missing BY part is an empty list; the values
/// of a list are sorted and unique.
struct RecurrenceParts {
    enum class Frequency { secondly, minutely, hourly, daily, weekly, monthly, yearly };

    struct WeekDay {
        int day = 1;      // as in QDate: 1 is Monday
        int position = 0; // which of these days in the month or year, negative from the end; 0 is every one

        auto operator<=>(const WeekDay &) const = default;
    };

    Frequency frequency = Frequency::daily;
    int interval = 1;
    std::optional<int> count = std::nullopt;
    std::optional<ParsedTime> until = std::nullopt;
    int firstDayOfWeek = 1;
    std::vector<int> months = {};
    std::vector<int> weeks = {};
    std::vector<int> yearDays = {};
    std::vector<int> monthDays = {};
    std::vector<WeekDay> weekDays = {};
    std::vector<int> hours = {};
    std::vector<int> minutes = {};
    std::vector<int> seconds = {};
    std::vector<int> positions = {};

    /// Returns std::nullopt for text that is no rule, for rules that the RFC does not allow, and for
    /// calendars other than the Gregorian one.
    static std::optional<RecurrenceParts> parse(QByteArrayView text);

    bool isWithinDay() const { return frequency < Frequency::daily; }
};
