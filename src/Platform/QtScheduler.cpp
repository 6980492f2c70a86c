#include "Platform/QtScheduler.h"

#include <QObject>
#include <QTimerEvent>

namespace
{
enum class Repetition { once, endless };

class Timer : public QObject
{
public:
    Timer(std::chrono::milliseconds interval, Repetition repetition, Scheduler::Action action)
        : m_action(std::move(action))
        , m_repetition(repetition)
    {
        startTimer(interval, Qt::PreciseTimer);
    }

protected:
    void timerEvent(QTimerEvent *event) override
    {
        if (m_repetition == Repetition::once)
            killTimer(event->timerId());
        // The action may drop the last reference to this timer, and must itself outlive that.
        const Scheduler::Action action = m_action;
        action();
    }

private:
    Scheduler::Action m_action;
    Repetition m_repetition;
};
} // namespace

std::chrono::milliseconds QtScheduler::now() const
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

ScheduledCall QtScheduler::after(std::chrono::milliseconds delay, Action action)
{
    return ScheduledCall(std::make_shared<Timer>(delay, Repetition::once, std::move(action)));
}

ScheduledCall QtScheduler::every(std::chrono::milliseconds interval, Action action)
{
    return ScheduledCall(std::make_shared<Timer>(interval, Repetition::endless, std::move(action)));
}
