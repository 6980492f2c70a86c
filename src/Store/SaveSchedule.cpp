#include "Store/SaveSchedule.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace
{
constexpr auto delayAfterLast = 500ms;
constexpr auto delayAfterFirst = 2s;
constexpr int pausePerSave = 9; // times its duration, so that at most a tenth of the time goes into saving
} // namespace

SaveSchedule::SaveSchedule(Scheduler &scheduler, std::function<void()> save)
    : m_scheduler(scheduler)
    , m_save(std::move(save))
{
}

void SaveSchedule::changed()
{
    m_afterLastChange = m_scheduler.after(delayAfterLast, m_save);
    if (m_afterFirstChange)
        return;
    m_afterFirstChange = m_scheduler.after(longestDelay(), [this] {
        m_afterLastChange.cancel();
        m_save();
    });
}

void SaveSchedule::saved(std::chrono::milliseconds duration)
{
    m_afterFirstChange.reset();
    m_lastDuration = duration;
}

void SaveSchedule::cancel()
{
    m_afterLastChange.cancel();
    m_afterFirstChange.reset();
}

std::chrono::milliseconds SaveSchedule::longestDelay() const
{
    return std::max<std::chrono::milliseconds>(delayAfterFirst, pausePerSave * m_lastDuration);
}
