#include "Tasks/UpcomingEvents.h"

#include "Models/LocalTime.h"
#include "Services/Clock.h"
#include "Tasks/ClockFace.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype mostRows = 3;
}

UpcomingEvents::UpcomingEvents(CalendarStore &eventStore, const Clock &clock, const QLocale &locale,
                               QObject *parent)
    : QAbstractListModel(parent)
    , m_eventStore(eventStore)
    , m_clock(clock)
    , m_locale(locale)
{
}

void UpcomingEvents::fetchEvents()
{
    const Timestamp now = m_clock.now();
    const QTimeZone zone = m_clock.timeZone();
    const QDateTime end = localTime(now, zone).addDays(1); // of the calendar: not always 24 hours
    const CalendarWindow window{.from = now, .to = end.isValid() ? timestampOf(end) : now, .zone = zone};
    m_fetch = m_eventStore.fetch(window, [this](const CalendarStore::Answer &answer) {
        if (answer)
            assign(*answer);
    });
}

void UpcomingEvents::assign(const QList<CalendarEvent> &events)
{
    QList<const CalendarEvent *> sorted;
    for (const CalendarEvent &event : events)
        sorted.append(&event);
    std::ranges::stable_sort(sorted, {}, &CalendarEvent::start);
    const int before = total();
    beginResetModel();
    m_upcomingEvents.clear();
    for (const CalendarEvent *event : std::as_const(sorted))
        m_upcomingEvents.append(*event);
    endResetModel();
    if (total() != before)
        Q_EMIT totalChanged();
}

QString UpcomingEvents::eventTimeString(const CalendarEvent &event) const
{
    const QTimeZone zone = m_clock.timeZone();
    return ClockFace::time(event.start, zone, m_locale) + u' ' +
           ClockFace::marker(event.start, zone, m_locale);
}

int UpcomingEvents::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::min(m_upcomingEvents.size(), mostRows));
}

QVariant UpcomingEvents::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CalendarEvent &event = m_upcomingEvents.at(index.row());
    switch (role) {
    case EventIdentifierRole:
        return event.identifier.value_or(QString());
    case TitleRole:
        return event.title.value_or(u"Untitled"_s);
    case TimeRole:
        return eventTimeString(event);
    default:
        return {};
    }
}

QHash<int, QByteArray> UpcomingEvents::roleNames() const
{
    return {{EventIdentifierRole, "eventIdentifier"}, {TitleRole, "title"}, {TimeRole, "time"}};
}
