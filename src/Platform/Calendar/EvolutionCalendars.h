#pragma once

#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QDBusConnection>
#include <QSet>

/// The events of a window, and the UIDs of all events that were read.
struct FoundEvents {
    QList<CalendarEvent> events = {};
    QSet<QByteArray> uids = {};
};

/// Fetches the events of all enabled calendars of Evolution Data Server in parallel. Blocks until all have
/// answered or `limit` expires, and returns the events received by then. Returns std::nullopt if the service
/// is missing, does not answer, or has no enabled calendar. For worker threads.
std::optional<FoundEvents> evolutionEvents(const QDBusConnection &bus, const CalendarWindow &window,
                                           const FetchDeadline &limit);
