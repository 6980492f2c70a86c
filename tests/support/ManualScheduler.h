#pragma once

#include "Services/Scheduler.h"

#include <algorithm>
#include <vector>

/// A scheduler with manual time.
class ManualScheduler : public Scheduler
{
public:
    using Milliseconds = std::chrono::milliseconds;

    Milliseconds now() const override { return m_now; }
    ScheduledCall after(Milliseconds delay, Action action) override;
    ScheduledCall every(Milliseconds interval, Action action) override;

    /// Advances the time and makes every call that is due, in the order of their times.
    void advance(Milliseconds duration);

    /// Advances the time without making calls, as if the thread were busy; the next `advance` makes them.
    void block(Milliseconds duration) { m_now += duration; }

    /// Returns whether no call is scheduled.
    bool isIdle() const
    {
        return std::ranges::all_of(m_entries, [](const Entry &entry) { return entry.token.expired(); });
    }

private:
    struct Entry {
        Milliseconds due;
        Milliseconds interval; // zero for a single call
        std::weak_ptr<void> token;
        Action action;
    };

    ScheduledCall add(Milliseconds delay, Milliseconds interval, Action action);

    Milliseconds m_now{0};
    std::vector<Entry> m_entries;
};
