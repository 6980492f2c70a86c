#include "Timers/PomodoroText.h"

#include "Timers/PomodoroTimer.h"

#include <QCoreApplication>

double phaseProgress(const PomodoroTimer &timer)
{
    return 1.0 - double(timer.timeRemaining()) / double(timer.phaseLength());
}

int minutesLeft(const PomodoroTimer &timer)
{
    return int((timer.timeRemaining() + 59) / 60);
}

QString timeLeftInWords(const PomodoroTimer &timer)
{
    const QString words = timer.isFocusPhase()
                              ? QCoreApplication::translate("PomodoroTimer", "%1 of focus left")
                              : QCoreApplication::translate("PomodoroTimer", "%1 of break left");
    return words.arg(timer.displayTime());
}

QString stateInWords(const PomodoroTimer &timer)
{
    if (timer.isRunning())
        return timeLeftInWords(timer);
    if (timer.timeRemaining() < timer.phaseLength())
        return QCoreApplication::translate("PomodoroTimer", "Paused, %1").arg(timeLeftInWords(timer));
    const QString words = timer.isFocusPhase()
                              ? QCoreApplication::translate("PomodoroTimer", "Ready for %1 of focus")
                              : QCoreApplication::translate("PomodoroTimer", "Ready for %1 of break");
    return words.arg(timer.displayTime());
}

void startOrPause(PomodoroTimer &timer)
{
    if (timer.isRunning())
        timer.pause();
    else
        timer.start();
}
