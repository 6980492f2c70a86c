#include "support/ManualScheduler.h"

ScheduledCall ManualScheduler::after(Milliseconds delay, Action action)
{
    return add(delay, Milliseconds::zero(), std::move(action));
}

ScheduledCall ManualScheduler::every(Milliseconds interval, Action action)
{
    return add(interval, interval, std::move(action));
}

ScheduledCall ManualScheduler::add(Milliseconds delay, Milliseconds interval, Action action)
{
    auto token = std::make_shared<int>();
    m_entries.push_back({m_now + delay, interval, token, std::move(action)});
    return ScheduledCall(token);
}

void ManualScheduler::advance(Milliseconds duration)
{
    const Milliseconds end = m_now + duration;
    while (true) {
        std::erase_if(m_entries, [](const Entry &entry) { return entry.token.expired(); });
        const auto next = std::ranges::min_element(m_entries, {}, &Entry::due);
        if (next == m_entries.end() || next->due > end)
            break;
        m_now = std::max(m_now, next->due);
        const Action action = next->action;
        if (next->interval > Milliseconds::zero())
            next->due += next->interval;
        else
            m_entries.erase(next);
        action();
    }
    m_now = std::max(m_now, end);
}
