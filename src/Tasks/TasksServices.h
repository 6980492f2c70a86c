#pragma once

#include <QLocale>

class CalendarStore;
class Clock;
class Preferences;
class Scheduler;

/// What tasks panels need of the desktop they run on. All of it outlives them.
struct TasksServices {
    Scheduler &scheduler;
    const Clock &clock;
    Preferences &preferences;
    CalendarStore &eventStore;
    QLocale locale = {};
};
