#pragma once

#include "Calendar/RecurrenceRule.h"

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
};

/// A zone that only a calendar knows. One without any observance is the user's own.
class WrittenZone : public WallZone
{
public:
    explicit WrittenZone(std::shared_ptr<const WallZone> otherwise) : m_otherwise(std::move(otherwise)) {}

    void setObservances(std::vector<Observance> observances);

    qint64 offsetAt(qint64 utc) const override;

private:
    std::vector<Observance> m_observances; // by their start
    std::shared_ptr<const WallZone> m_otherwise;
};
