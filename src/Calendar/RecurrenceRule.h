#pragma once

#include "Calendar/RecurrenceParts.h"

#include <functional>
#include <memory>
#include <vector>

/// Returns true when the result is no longer needed; the computation then stops early.
using IsCancelled = std::function<bool()>;

/// A recurrence rule such as "FREQ=WEEKLY;BYDAY=MO". The cost is bounded: a rule ends after ten thousand
/// times, and a rule with excessive periods, such as every second of a year, has no times.
class RecurrenceRule
{
public:
    /// The half-open interval [from, to) of wall times.
    struct Range {
        qint64 from = 0;
        qint64 to = 0;
    };

    /// Returns std::nullopt for text that is no rule, and for rules that RFC 5545 does not allow.
    static std::optional<RecurrenceRule> parse(QByteArrayView text);

    bool isYearly() const;

    /// Returns the sorted times in the range for an event that starts at `start`. The start itself is
    /// included only if the rule selects it.
    std::vector<qint64> times(const CalendarTime &start, const Range &range,
                              const IsCancelled &isCancelled) const;

    /// Returns UNTIL as a wall time in the zone of `start`, or std::nullopt if the rule has no UNTIL.
    std::optional<qint64> until(const CalendarTime &start) const;

private:
    explicit RecurrenceRule(const RecurrenceParts &parts);

    std::shared_ptr<const RecurrenceParts> m_parts;
};
