#pragma once

#include "Calendar/CalendarReferences.h"
#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

/// Fetches from one calendar of Evolution Data Server the text of the events that may overlap a window.
/// Recurring events are fetched one by one, because only that reply contains their overrides. Failed calls
/// are skipped.
class EvolutionCalendar : public QObject
{
    Q_OBJECT

public:
    EvolutionCalendar(QDBusConnection bus, QString uid, const CalendarWindow &window,
                      const FetchDeadline &limit);

    void ask();

    /// Returns whether all calls have finished.
    bool isDone() const { return m_waiting == 0; }
    /// Returns the iCalendar text received so far.
    QByteArray text() const;

Q_SIGNALS:
    void done();

private:
    using Next = std::function<void(const QDBusMessage &)>;

    void call(const QDBusMessage &message, Next next);
    void askForNextPart();
    QDBusMessage toCalendar(const QString &method) const;
    void open(const QDBusMessage &answer);
    void list();
    void readList(const QDBusMessage &answer);
    void askForParts(const CalendarReferences &names);

    QDBusConnection m_bus;
    QString m_uid;
    const CalendarWindow &m_window;
    const FetchDeadline &m_limit;
    QString m_service;
    QString m_path;
    QByteArrayList m_once;       // single events, in the order of the reply
    QByteArrayList m_further;    // time zones and recurring events
    QList<QDBusMessage> m_parts; // calls not sent yet
    int m_waiting = 0;
};
