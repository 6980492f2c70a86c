#pragma once

#include "Models/Timestamp.h"
#include "Services/Scheduler.h"

#include <QList>
#include <QString>
#include <QTimeZone>

#include <optional>

/// One occurrence in the user's calendars. Each occurrence of a recurring event is an event of its own.
struct CalendarEvent {
    std::optional<QString> title = std::nullopt;
    Timestamp start = 0;
    /// If the end is known, not before the start.
    Timestamp end = 0;
    std::optional<QString> identifier = std::nullopt;

    bool operator==(const CalendarEvent &) const = default;
};

/// The half-open interval [from, to), and the zone in which its days begin.
struct CalendarWindow {
    Timestamp from = 0;
    Timestamp to = 0;
    QTimeZone zone = QTimeZone::utc();
};

/// Read-only access to the user's calendars.
class CalendarStore
{
public:
    /// std::nullopt if access is denied or there are no calendars.
    using Answer = std::optional<QList<CalendarEvent>>;
    using Completion = std::function<void(const Answer &)>;

    virtual ~CalendarStore() = default;

    /// Requests access to all calendars and fetches the events that overlap the window, asynchronously. Calls
    /// `completion` once on the interface thread, unless the returned ScheduledCall is destroyed first.
    [[nodiscard]] virtual ScheduledCall fetch(const CalendarWindow &window, Completion completion) = 0;
};
