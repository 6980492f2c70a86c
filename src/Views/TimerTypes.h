#pragma once

#include "Timers/PomodoroViewModel.h"
#include "Timers/TimersViewModel.h"

#include <QtQml/qqml.h>

/// QML_FOREIGN registrations of the timers, which do not depend on QtQml.
struct FlowTimerForQml {
    Q_GADGET
    QML_FOREIGN(FlowTimer)
    QML_NAMED_ELEMENT(FlowTimer)
    QML_UNCREATABLE("Handed in by the program.")
};

struct PomodoroViewModelForQml {
    Q_GADGET
    QML_FOREIGN(PomodoroViewModel)
    QML_NAMED_ELEMENT(PomodoroViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct TimersViewModelForQml {
    Q_GADGET
    QML_FOREIGN(TimersViewModel)
    QML_NAMED_ELEMENT(TimersViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};
