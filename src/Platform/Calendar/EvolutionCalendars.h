#pragma once

#include "Platform/Calendar/FetchLimit.h"
#include "Services/CalendarStore.h"

#include <QDBusConnection>

/// The calendars of Evolution Data Server, where desktops keep those of all accounts, asked over the bus and
/// all at the same time. Meant for a thread that may wait: it comes back when all have answered or when the
/// limit is reached, with what came until then. Nothing where there is no such service, where it does not
/// answer, or where it has no calendar in use.
CalendarStore::Answer evolutionEvents(const QDBusConnection &bus, const CalendarWindow &window,
                                      const FetchLimit &limit);
