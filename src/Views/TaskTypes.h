#pragma once

#include "Tasks/TasksPanelViewModel.h"
#include "Tasks/TasksViewModel.h"
#include "Tasks/UpcomingEvents.h"

#include <QtQml/qqml.h>

/// QML_FOREIGN registrations of the view models, which do not depend on QtQml.
struct TasksViewModelForQml {
    Q_GADGET
    QML_FOREIGN(TasksViewModel)
    QML_NAMED_ELEMENT(TasksViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct TasksPanelViewModelForQml {
    Q_GADGET
    QML_FOREIGN(TasksPanelViewModel)
    QML_NAMED_ELEMENT(TasksPanelViewModel)
    QML_UNCREATABLE("Handed in by the program.")
};

struct UpcomingEventsForQml {
    Q_GADGET
    QML_FOREIGN(UpcomingEvents)
    QML_NAMED_ELEMENT(UpcomingEvents)
    QML_UNCREATABLE("Handed in by the program.")
};
