#pragma once

#include <QLocale>

class CalendarStore;
class Clock;
class Preferences;
class Scheduler;

/// The services that a tasks panel uses. They must outlive it.
struct TasksServices {
    Scheduler &scheduler;
    const Clock &clock;
    Preferences &preferences;
    CalendarStore &eventStore;
    QLocale locale = {};
};
