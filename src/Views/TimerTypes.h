#pragma once

#include "Timers/PomodoroViewModel.h"
#include "Timers/TimersViewModel.h"

#include <QtQml/qqml.h>

/// Makes the timers and their view models, which know nothing of QML, known to it.
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
