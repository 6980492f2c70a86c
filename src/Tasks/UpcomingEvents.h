#pragma once

#include "Services/CalendarStore.h"

#include <QAbstractListModel>
#include <QLocale>

class Clock;

/// What comes next in the user's calendars: the events of the day that begins at the moment of the fetch. Its
/// rows, for QML, are the first three of them; the total counts all. Where calendars may not be read the list
/// stays as it was, without a word.
class UpcomingEvents : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int total READ total NOTIFY totalChanged)

public:
    enum Role { EventIdentifierRole = Qt::UserRole, TitleRole, TimeRole };

    UpcomingEvents(CalendarStore &eventStore, const Clock &clock, const QLocale &locale,
                   QObject *parent = nullptr);

    /// By their start; of the same start, as the store has them.
    const QList<CalendarEvent> &upcomingEvents() const { return m_upcomingEvents; }
    int total() const { return static_cast<int>(m_upcomingEvents.size()); }

    /// Asks for access and, with it, for the events of the coming day. The list is replaced as a whole,
    /// later.
    void fetchEvents();

    /// When it starts, like "9:30 AM", on whatever day that is.
    QString eventTimeString(const CalendarEvent &event) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void totalChanged();

private:
    void assign(const QList<CalendarEvent> &events);

    CalendarStore &m_eventStore;
    const Clock &m_clock;
    QLocale m_locale;
    QList<CalendarEvent> m_upcomingEvents;
    ScheduledCall m_fetch;
};
