#pragma once

#include "Services/CalendarStore.h"

#include <QAbstractListModel>
#include <QLocale>

class Clock;

/// The events of the 24 hours after a fetch, sorted by start. The rows are the first three; the total counts
/// all. If the calendars cannot be read, the list stays unchanged.
class UpcomingEvents : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int total READ total NOTIFY totalChanged)

public:
    enum Role { EventIdentifierRole = Qt::UserRole, TitleRole, TimeRole };

    UpcomingEvents(CalendarStore &eventStore, const Clock &clock, const QLocale &locale,
                   QObject *parent = nullptr);

    /// Sorted by start; events with the same start keep the order of the store.
    const QList<CalendarEvent> &upcomingEvents() const { return m_upcomingEvents; }
    int total() const { return static_cast<int>(m_upcomingEvents.size()); }

    /// Requests access and fetches the events of the next 24 hours. The list is replaced when they arrive.
    void fetchEvents();

    /// Fetches again if one of the events has ended, a day has begun, or the clock or the time zone was
    /// changed since the last fetch.
    void followClock();

    /// Returns the start of the event, such as "9:30 AM", without the date.
    QString eventTimeString(const CalendarEvent &event) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void totalChanged();

private:
    void assign(const QList<CalendarEvent> &events);
    bool isOutdated() const;

    CalendarStore &m_eventStore;
    const Clock &m_clock;
    QLocale m_locale;
    QList<CalendarEvent> m_upcomingEvents;
    Timestamp m_fetchTime = 0;
    QTimeZone m_fetchZone;
    ScheduledCall m_fetch;
};
