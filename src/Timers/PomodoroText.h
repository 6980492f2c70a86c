#pragma once

#include <QString>

class PomodoroTimer;

/// How much of the phase has passed, from 0 to 1.
double phaseProgress(const PomodoroTimer &timer);

/// Rounded up, so that the last minute reads 1.
int minutesLeft(const PomodoroTimer &timer);

/// "16:42 of focus left".
QString timeLeftInWords(const PomodoroTimer &timer);

/// The same while the timer runs; otherwise whether it is paused, or has not been started yet.
QString stateInWords(const PomodoroTimer &timer);

/// What one button that starts and pauses does.
void startOrPause(PomodoroTimer &timer);
