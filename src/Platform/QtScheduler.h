#pragma once

#include "Services/Scheduler.h"

/// Calls from Qt's event loop, precise to the millisecond. An action may drop its own request.
class QtScheduler : public Scheduler
{
public:
    std::chrono::milliseconds now() const override;
    [[nodiscard]] ScheduledCall after(std::chrono::milliseconds delay, Action action) override;
    [[nodiscard]] ScheduledCall every(std::chrono::milliseconds interval, Action action) override;
};
