#pragma once

#include "Calendar/RecurrenceParts.h"

#include <functional>
#include <memory>
#include <vector>

/// Nobody waits any more for what is being worked out.
using IsCancelled = std::function<bool()>;

/// A recurrence rule: "FREQ=WEEKLY;BYDAY=MO". Whatever it says, working out its times ends soon: after ten
/// thousand times it counts as if it ended, and one that nobody would enter, like every second of a year, has
/// none.
class RecurrenceRule
{
public:
    /// Wall times: from the first moment to the last but one.
    struct Range {
        qint64 from = 0;
        qint64 to = 0;
    };

    /// Returns std::nullopt for text that is no rule, and for rules that RFC 5545 does not allow.
    static std::optional<RecurrenceRule> parse(QByteArrayView text);

    bool isYearly() const;

    /// The times in the range, in order, of what begins at `start`. The start itself is among them only where
    /// the rule names it.
    std::vector<qint64> times(const CalendarTime &start, const Range &range,
                              const IsCancelled &isCancelled) const;

    /// The wall time of the rule's end, if it has one, for what starts in a zone.
    std::optional<qint64> until(const CalendarTime &start) const;

private:
    explicit RecurrenceRule(const RecurrenceParts &parts);

    std::shared_ptr<const RecurrenceParts> m_parts;
};
