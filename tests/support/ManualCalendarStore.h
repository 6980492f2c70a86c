#pragma once

#include "Services/CalendarStore.h"

#include <algorithm>

/// Calendars that reply when the test calls `answer`.
class ManualCalendarStore : public CalendarStore
{
public:
    ScheduledCall fetch(const CalendarWindow &window, Completion completion) override
    {
        windows.append(window);
        const auto request = std::make_shared<Completion>(std::move(completion));
        m_requests.push_back(request);
        return ScheduledCall(request);
    }

    /// Replies to all pending fetches. Cancelled ones are skipped.
    void answer(const Answer &answer)
    {
        for (const auto &waiting : std::exchange(m_requests, {})) {
            if (const auto request = waiting.lock())
                (*request)(answer);
        }
    }

    bool isWaitedFor() const
    {
        return std::ranges::any_of(m_requests, [](const auto &request) { return !request.expired(); });
    }

    QList<CalendarWindow> windows;

private:
    std::vector<std::weak_ptr<Completion>> m_requests;
};
