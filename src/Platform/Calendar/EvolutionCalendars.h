#pragma once

#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QDBusConnection>
#include <QSet>

/// Events of a window, and the UIDs of all that was looked at for their sake.
struct FoundEvents {
    QList<CalendarEvent> events = {};
    QSet<QByteArray> uids = {};
};

/// The calendars of Evolution Data Server, where desktops keep those of all accounts, asked over the bus and
/// all at the same time. Meant for a thread that may wait: it comes back when all have answered or when the
/// limit is reached, with what came until then. std::nullopt where there is no such service, where it does
/// not answer, or where it has no calendar in use.
std::optional<FoundEvents> evolutionEvents(const QDBusConnection &bus, const CalendarWindow &window,
                                           const FetchDeadline &limit);
