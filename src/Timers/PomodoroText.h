#pragma once

#include <QString>

class PomodoroTimer;

/// Returns the elapsed part of the phase, from 0 to 1.
double phaseProgress(const PomodoroTimer &timer);

/// Returns the remaining minutes, rounded up.
int minutesLeft(const PomodoroTimer &timer);

/// Returns the remaining time and the phase, such as "16:42 of focus left".
QString timeLeftInWords(const PomodoroTimer &timer);

/// Returns the same while the timer runs, otherwise that it is paused or not started.
QString stateInWords(const PomodoroTimer &timer);

/// Starts or pauses the timer: the action of its one button.
void startOrPause(PomodoroTimer &timer);
