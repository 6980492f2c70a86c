#include "Platform/QtScheduler.h"
#include "Timers/FlowTimer.h"

FlowTimer &FlowTimer::shared()
{
    // Both outlive every static object that could still look at them while the program ends.
    static QtScheduler &scheduler = *new QtScheduler;
    static FlowTimer &timer = *new FlowTimer(scheduler);
    return timer;
}
