#pragma once

#include "Calendar/RecurrenceRule.h"

#include <limits>

/// A STANDARD or DAYLIGHT section of a VTIMEZONE. Offsets are seconds east of UTC.
struct Observance {
    /// The first onset, as wall time with `offsetBefore`.
    qint64 start = 0;
    qint64 offsetBefore = 0;
    qint64 offset = 0;
    std::vector<qint64> dates = {};
    std::optional<RecurrenceRule> rule = std::nullopt;

    /// Returns the last onset at or before a UTC time, or std::nullopt.
    std::optional<qint64> lastBeginning(qint64 utc) const;

    /// Returns the rule's onsets in the four years around a wall time. The last result is cached, because
    /// every event queries its zone.
    const std::vector<qint64> &timesAround(const CalendarTime &first, qint64 wall) const;
    mutable std::vector<qint64> knownTimes = {};
    mutable qint64 knownPart = std::numeric_limits<qint64>::min();
};

/// A zone described by a VTIMEZONE. Without observances it behaves like the fallback zone.
class VTimeZone : public TimeZone
{
public:
    explicit VTimeZone(std::shared_ptr<const TimeZone> otherwise) : m_otherwise(std::move(otherwise)) {}

    void setObservances(std::vector<Observance> observances);

    qint64 offsetAt(qint64 utc) const override;

private:
    std::vector<Observance> m_observances; // sorted by start
    std::shared_ptr<const TimeZone> m_otherwise;
};
