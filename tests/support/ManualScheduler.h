#pragma once

#include "Services/Scheduler.h"

#include <algorithm>
#include <vector>

/// A scheduler whose time passes only when a test says so.
class ManualScheduler : public Scheduler
{
public:
    using Milliseconds = std::chrono::milliseconds;

    Milliseconds now() const override { return m_now; }
    ScheduledCall after(Milliseconds delay, Action action) override;
    ScheduledCall every(Milliseconds interval, Action action) override;

    /// Lets time pass, making every call that falls due, in the order of their times.
    void advance(Milliseconds duration);

    /// Lets time pass while the caller is busy: what falls due meanwhile is called by the next `advance`.
    void block(Milliseconds duration) { m_now += duration; }

    /// Whether no call is asked for any more.
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
