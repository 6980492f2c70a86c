#pragma once

#include "Calendar/CalendarReferences.h"
#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

/// Asks one calendar of Evolution Data Server for the text of what may overlap a window. The events that
/// repeat are asked for again, one by one, because only so their changed occurrences come with them. What
/// fails is left out.
class EvolutionCalendar : public QObject
{
    Q_OBJECT

public:
    EvolutionCalendar(QDBusConnection bus, QString uid, const CalendarWindow &window,
                      const FetchDeadline &limit);

    void ask();

    /// Whether there is nothing more to come.
    bool isDone() const { return m_waiting == 0; }
    /// What came until now, as one text.
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
    QByteArrayList m_once;       // in the order in which they were told
    QByteArrayList m_further;    // zones, and what repeats
    QList<QDBusMessage> m_parts; // still to be asked for
    int m_waiting = 0;
};
