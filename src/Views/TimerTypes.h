#pragma once

#include "Timers/TimersViewModel.h"

#include <QtQml/qqml.h>

/// Makes the timers and their view models, which know nothing of QML, known to it.
struct FlowTimerForQml {
    Q_GADGET
    QML_FOREIGN(FlowTimer)
    QML_NAMED_ELEMENT(FlowTimer)
    QML_UNCREATABLE("Handed in by the program.")
};

struct TimersViewModelForQml {
    Q_GADGET
    QML_FOREIGN(TimersViewModel)
    QML_NAMED_ELEMENT(TimersViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};
