#include "Platform/Calendar/EvolutionCalendar.h"

#include "Models/LocalTime.h"

#include <QDBusPendingCallWatcher>
#include <QDateTime>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace
{
const QString interfaceName = u"org.gnome.evolution.dataserver.Calendar"_s;
/// The maximum number of parallel calls. The bus limits pending replies, and sent calls cannot be cancelled.
constexpr int mostCalls = 32;

/// Selects the events in the window and, because the server does not find occurrences that were moved into
/// it, all recurring events. One day is added on either side, because the server treats zones and days
/// differently; the result is filtered again.
QString query(const CalendarWindow &window)
{
    const auto moment = [](Timestamp time, int days) {
        return localTime(time, QTimeZone::utc()).addDays(days).toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    };
    return uR"((or (occur-in-time-range? (make-time "%1") (make-time "%2")) (has-recurrences?)))"_s.arg(
        moment(window.from, -1), moment(window.to, 1));
}
bool isAddress(const QString &service, const QString &path)
{
    static const QRegularExpression serviceForm(uR"(^:?[\w-]+(\.[\w-]+)+$)"_s);
    static const QRegularExpression pathForm(uR"(^(/\w+)+$)"_s);
    return serviceForm.match(service).hasMatch() && pathForm.match(path).hasMatch();
}
} // namespace

EvolutionCalendar::EvolutionCalendar(QDBusConnection bus, QString uid, const CalendarWindow &window,
                                     const FetchDeadline &limit)
    : m_bus(std::move(bus))
    , m_uid(std::move(uid))
    , m_window(window)
    , m_limit(limit)
{
}

void EvolutionCalendar::ask()
{
    auto message = QDBusMessage::createMethodCall(
        u"org.gnome.evolution.dataserver.Calendar8"_s, u"/org/gnome/evolution/dataserver/CalendarFactory"_s,
        u"org.gnome.evolution.dataserver.CalendarFactory"_s, u"OpenCalendar"_s);
    call(message << m_uid, [this](const QDBusMessage &answer) { open(answer); });
}

QByteArray EvolutionCalendar::text() const
{
    return (m_further + m_once).join("\r\n");
}

void EvolutionCalendar::call(const QDBusMessage &message, Next next)
{
    ++m_waiting;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, int(m_limit.left().count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, next = std::move(next)] {
        const QDBusMessage answer = watcher->reply();
        watcher->deleteLater();
        if (answer.type() == QDBusMessage::ReplyMessage)
            next(answer);
        if (--m_waiting == 0)
            Q_EMIT done();
    });
}

QDBusMessage EvolutionCalendar::toCalendar(const QString &method) const
{
    return QDBusMessage::createMethodCall(m_service, m_path, interfaceName, method);
}

void EvolutionCalendar::open(const QDBusMessage &answer)
{
    if (answer.signature() != "ss"_L1)
        return;
    m_path = answer.arguments().at(0).toString();
    m_service = answer.arguments().at(1).toString();
    if (isAddress(m_service, m_path))
        call(toCalendar(u"Open"_s), [this](const QDBusMessage &) { list(); });
}

void EvolutionCalendar::list()
{
    call(toCalendar(u"GetObjectList"_s) << query(m_window),
         [this](const QDBusMessage &answer) { readList(answer); });
}

void EvolutionCalendar::readList(const QDBusMessage &answer)
{
    if (answer.signature() != "as"_L1)
        return;
    QByteArrayList events;
    for (const QString &event : answer.arguments().first().toStringList())
        events << event.toUtf8();
    const CalendarReferences names = CalendarReferences::in(events.join("\r\n"));
    for (const QByteArray &event : std::as_const(events)) {
        if (m_limit.isOver())
            return;
        if (CalendarReferences::in(event).repeatingUids.isEmpty())
            m_once << event;
    }
    askForParts(names);
}

void EvolutionCalendar::askForParts(const CalendarReferences &names)
{
    // The zones first: without them, other events are at a wrong time.
    for (const QByteArray &zone : names.unknownZones)
        m_parts << (toCalendar(u"GetTimezone"_s) << QString::fromUtf8(zone));
    for (const QByteArray &uid : names.repeatingUids)
        m_parts << (toCalendar(u"GetObject"_s) << QString::fromUtf8(uid) << QString());
    for (int count = 0; count < mostCalls; ++count)
        askForNextPart();
}

void EvolutionCalendar::askForNextPart()
{
    if (m_parts.isEmpty() || m_limit.isOver())
        return;
    call(m_parts.takeFirst(), [this](const QDBusMessage &answer) {
        if (answer.signature() == "s"_L1)
            m_further << answer.arguments().first().toString().toUtf8();
        askForNextPart();
    });
}
