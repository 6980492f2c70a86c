#include "Tasks/UpcomingEvents.h"

#include "Models/LocalTime.h"
#include "Services/Clock.h"
#include "Tasks/ClockText.h"

#include <algorithm>
#include <utility>

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
    m_fetchTime = m_clock.now();
    if (std::exchange(m_fetchZone, m_clock.timeZone()) != m_fetchZone && rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TimeRole});
    const QDateTime end =
        localTime(m_fetchTime, m_fetchZone).addDays(1); // a calendar day is not always 24 hours
    const CalendarWindow window{
        .from = m_fetchTime, .to = end.isValid() ? timestampOf(end) : m_fetchTime, .zone = m_fetchZone};
    m_fetch = m_eventStore.fetch(window, [this](const CalendarStore::Answer &answer) {
        if (answer)
            assign(*answer);
    });
}

void UpcomingEvents::followClock()
{
    if (isOutdated())
        fetchEvents();
}

bool UpcomingEvents::isOutdated() const
{
    const Timestamp now = m_clock.now();
    const QTimeZone zone = m_clock.timeZone();
    return now < m_fetchTime || zone != m_fetchZone ||
           localTime(now, zone).date() != localTime(m_fetchTime, zone).date() ||
           std::ranges::any_of(
               m_upcomingEvents,
               [this, now](const CalendarEvent &event) {
                   return event.end > m_fetchTime && event.end <= now;
               });
}

void UpcomingEvents::assign(const QList<CalendarEvent> &events)
{
    QList<const CalendarEvent *> order;
    for (const CalendarEvent &event : events)
        order.append(&event);
    std::ranges::stable_sort(order, {}, &CalendarEvent::start);
    // Assigned, because GCC 14 warns about an uninitialised event in append().
    QList<CalendarEvent> sorted(order.size());
    std::ranges::transform(order, sorted.begin(), [](const CalendarEvent *event) { return *event; });
    if (sorted == m_upcomingEvents)
        return;
    const int before = total();
    beginResetModel();
    m_upcomingEvents = std::move(sorted);
    endResetModel();
    if (total() != before)
        Q_EMIT totalChanged();
}

QString UpcomingEvents::eventTimeString(const CalendarEvent &event) const
{
    const QTimeZone zone = m_clock.timeZone();
    return ClockText::time(event.start, zone, m_locale) + u' ' +
           ClockText::marker(event.start, zone, m_locale);
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
        return event.title.value_or(tr("Untitled", "an appointment"));
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
