#pragma once

#include "Calendar/RecurrenceRule.h"

#include <limits>

/// A time of year with its own offset, summer or winter, as a calendar describes it.
struct Observance {
    /// When it began first, as clocks showed it until then.
    qint64 start = 0;
    qint64 offsetBefore = 0;
    qint64 offset = 0;
    std::vector<qint64> dates = {};
    std::optional<RecurrenceRule> rule = std::nullopt;

    /// Its last beginning not after a moment.
    std::optional<qint64> lastBeginning(qint64 utc) const;

    /// The times of the rule in the four years around a wall time. A zone is asked for every event, so they
    /// are kept until another time is asked for.
    const std::vector<qint64> &timesAround(const CalendarTime &first, qint64 wall) const;
    mutable std::vector<qint64> knownTimes = {};
    mutable qint64 knownPart = std::numeric_limits<qint64>::min();
};

/// A zone that only a calendar knows. One without any observance is the user's own.
class VTimeZone : public TimeZone
{
public:
    explicit VTimeZone(std::shared_ptr<const TimeZone> otherwise) : m_otherwise(std::move(otherwise)) {}

    void setObservances(std::vector<Observance> observances);

    qint64 offsetAt(qint64 utc) const override;

private:
    std::vector<Observance> m_observances; // by their start
    std::shared_ptr<const TimeZone> m_otherwise;
};
