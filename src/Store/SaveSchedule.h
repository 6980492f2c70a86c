#pragma once

#include "Services/Scheduler.h"

#include <chrono>
#include <functional>
#include <optional>

/// When changes are saved: half a second after the last one, and two seconds after the first one that is not
/// saved. Where a save is slow, the two seconds stretch, so that at most a tenth of the time goes into
/// saving.
class SaveSchedule
{
public:
    /// `save` is called when it is time, and calls `saved`.
    SaveSchedule(Scheduler &scheduler, std::function<void()> save);

    /// A change was made.
    void changed();
    /// A save was tried and took this long.
    void saved(std::chrono::milliseconds duration);
    /// Saves no more before the next change.
    void cancel();

private:
    std::chrono::milliseconds longestDelay() const;

    Scheduler &m_scheduler;
    std::function<void()> m_save;
    std::chrono::milliseconds m_lastDuration{0};
    ScheduledCall m_afterLastChange;
    /// Set from the first unsaved change to the next save.
    std::optional<ScheduledCall> m_afterFirstChange;
};
