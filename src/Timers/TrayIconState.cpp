#include "Timers/TrayIconState.h"

#include "Timers/PomodoroText.h"
#include "Timers/PomodoroTimer.h"

#include <QCoreApplication>

namespace
{
constexpr double restingOpacity = 0.8;
constexpr double brightOpacity = 1.0;
constexpr double dimOpacity = 0.5;

QList<TrayMenuRow> trayMenu(const PomodoroTimer &timer)
{
    using Command = TrayMenuRow::Command;
    return {{Command::open, QCoreApplication::translate("TrayMenu", "Open Pelko")},
            {Command::startOrPause, timer.isRunning() ? QCoreApplication::translate("TrayMenu", "Pause")
                                                      : QCoreApplication::translate("TrayMenu", "Start")},
            {Command::reset, QCoreApplication::translate("TrayMenu", "Reset")},
            {Command::none, {}},
            {Command::quit, QCoreApplication::translate("TrayMenu", "Quit")}};
}

QString sessionsDone(qint64 count)
{
    if (count == 0)
        return QCoreApplication::translate("TrayMenu", "No session done yet");
    return QCoreApplication::translate("TrayMenu", "%n session(s) done", nullptr, int(count));
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
