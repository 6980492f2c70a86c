#pragma once

#include "Services/Scheduler.h"

#include <chrono>
#include <functional>
#include <optional>

/// Decides when changes are saved: half a second after the last change, and two seconds after the first
/// unsaved one. If a save is slow, the two seconds become longer, so that at most a tenth of the time goes
/// into saving.
class SaveSchedule
{
public:
    /// `save` is called when a save is due; it must call `saved`.
    SaveSchedule(Scheduler &scheduler, std::function<void()> save);

    /// Call it after each change.
    void changed();
    /// Call it after each attempt to save, with the time it took.
    void saved(std::chrono::milliseconds duration);
    /// Cancels the pending save.
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
