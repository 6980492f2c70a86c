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
    /// Not before the start, where it is known.
    Timestamp end = 0;
    std::optional<QString> identifier = std::nullopt;

    bool operator==(const CalendarEvent &) const = default;
};

/// A stretch of time, its end not included, and the zone whose midnights begin the days of it.
struct CalendarWindow {
    Timestamp from = 0;
    Timestamp to = 0;
    QTimeZone zone = QTimeZone::utc();
};

/// The calendars that the user keeps on this desktop, to be read only.
class CalendarStore
{
public:
    /// Nothing where the user's calendars may not be read, or where there are none.
    using Answer = std::optional<QList<CalendarEvent>>;
    using Completion = std::function<void(const Answer &)>;

    virtual ~CalendarStore() = default;

    /// Asks for access to all calendars and, with it, for every event that overlaps the window, without
    /// holding up the interface. Answers once and on the interface thread, unless what is returned has been
    /// dropped by then.
    [[nodiscard]] virtual ScheduledCall fetch(const CalendarWindow &window, Completion completion) = 0;
};
