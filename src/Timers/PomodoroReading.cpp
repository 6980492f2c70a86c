#include "Timers/PomodoroReading.h"

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
    const char *words = timer.isFocusPhase() ? "%1 of focus left" : "%1 of break left";
    return QCoreApplication::translate("PomodoroTimer", words).arg(timer.displayTime());
}

void startOrPause(PomodoroTimer &timer)
{
    if (timer.isRunning())
        timer.pause();
    else
        timer.start();
}
