#include "Timers/TrayIconState.h"

#include "Timers/PomodoroText.h"
#include "Timers/PomodoroTimer.h"

using namespace Qt::StringLiterals;

namespace
{
constexpr double restingOpacity = 0.8;
constexpr double brightOpacity = 1.0;
constexpr double dimOpacity = 0.5;

QList<TrayMenuRow> trayMenu(const PomodoroTimer &timer)
{
    using Command = TrayMenuRow::Command;
    return {{Command::open, u"Open Pelko"_s},
            {Command::startOrPause, timer.isRunning() ? u"Pause"_s : u"Start"_s},
            {Command::reset, u"Reset"_s},
            {Command::none, {}},
            {Command::quit, u"Quit"_s}};
}

QString sessionsDone(qint64 count)
{
    if (count == 0)
        return u"No session done yet"_s;
    return count == 1 ? u"1 session done"_s : u"%1 sessions done"_s.arg(count);
}

double flameOpacity(const PomodoroTimer &timer)
{
    if (!timer.isRunning())
        return restingOpacity;
    return timer.timeRemaining() % 2 == 0 ? brightOpacity : dimOpacity;
}
} // namespace

TrayIconState trayIconState(const PomodoroTimer &timer, const QString &saveError)
{
    return {.isRunning = timer.isRunning(),
            .flameOpacity = flameOpacity(timer),
            .progress = phaseProgress(timer),
            .minutesLeft = minutesLeft(timer),
            .label = timer.isRunning() ? timer.displayTime() : QString(),
            .toolTipTitle = stateInWords(timer),
            .toolTipText = saveError.isEmpty() ? sessionsDone(timer.sessionCount()) : saveError,
            .menu = trayMenu(timer)};
}
