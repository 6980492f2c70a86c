#pragma once

#include "Calendar/CalendarTime.h"

#include <functional>
#include <vector>

struct icalrecurrencetype;

/// Nobody waits any more for what is being worked out.
using IsGivenUp = std::function<bool()>;

/// When something happens again: "FREQ=WEEKLY;BYDAY=MO". Whatever the rule says, looking for its days ends
/// soon: a rule that is asked for more than ten thousand times counts as if it ended there, and one that
/// never comes true is told so without a search to the end of time.
class RecurrenceRule
{
public:
    /// From the first moment to the last but one, as clocks on the wall show them.
    struct Range {
        qint64 from = 0;
        qint64 to = 0;
    };

    /// Nothing for what is no rule, for rules of other calendars than the common one, and for hours, minutes
    /// or seconds of certain days of the year.
    static std::optional<RecurrenceRule> parse(QByteArrayView text);

    bool isYearly() const;

    /// Whether any day will ever be as the rule wants it, for what starts at a wall time.
    bool comesTrue(qint64 start) const;

    /// The times in the range, in order, at which something happens that happened at `start` first. That time
    /// itself is among them only where the rule agrees.
    std::vector<qint64> times(const CalendarTime &start, const Range &range,
                              const IsGivenUp &isGivenUp) const;

    /// The wall time after which nothing happens any more, if there is one, for what starts in a zone.
    std::optional<qint64> until(const CalendarTime &start) const;

private:
    explicit RecurrenceRule(const icalrecurrencetype &rule);

    std::shared_ptr<const icalrecurrencetype> m_rule;
};
