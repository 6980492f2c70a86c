#include "Platform/Calendar/EvolutionCalendars.h"

#include "Calendar/CalendarContents.h"
#include "Platform/Calendar/EvolutionCalendar.h"
#include "Platform/Calendar/EvolutionSources.h"

#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// The interval of the check whether the fetch was cancelled.
constexpr auto cancellationCheckInterval = 20ms;

/// Runs the event loop until all calls are done or the deadline has expired.
template <typename IsDone>
void wait(QEventLoop &loop, const FetchDeadline &limit, IsDone isDone)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (limit.isOver())
            loop.quit();
    });
    timer.start(cancellationCheckInterval);
    if (!isDone() && !limit.isOver())
        loop.exec();
}

QDBusMessage askForSources(const QDBusConnection &bus, const FetchDeadline &limit)
{
    const auto message = QDBusMessage::createMethodCall(
        u"org.gnome.evolution.dataserver.Sources5"_s, u"/org/gnome/evolution/dataserver/SourceManager"_s,
        u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    const QDBusPendingCallWatcher call(bus.asyncCall(message, int(limit.left().count())));
    QEventLoop loop;
    QObject::connect(&call, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    wait(loop, limit, [&call] { return call.isFinished(); });
    return call.isFinished() ? call.reply() : QDBusMessage();
}

std::vector<std::unique_ptr<EvolutionCalendar>> askAll(const QDBusConnection &bus, const QStringList &uids,
                                                       const CalendarWindow &window,
                                                       const FetchDeadline &limit)
{
    std::vector<std::unique_ptr<EvolutionCalendar>> calendars;
    const auto areDone = [&calendars] { return std::ranges::all_of(calendars, &EvolutionCalendar::isDone); };
    QEventLoop loop;
    for (const QString &uid : uids) {
        const auto &calendar =
            calendars.emplace_back(std::make_unique<EvolutionCalendar>(bus, uid, window, limit));
        QObject::connect(calendar.get(), &EvolutionCalendar::done, &loop, [&loop, &areDone] {
            if (areDone())
                loop.quit();
        });
        calendar->ask();
    }
    wait(loop, limit, areDone);
    return calendars;
}
} // namespace

std::optional<FoundEvents> evolutionEvents(const QDBusConnection &bus, const CalendarWindow &window,
                                           const FetchDeadline &limit)
{
    if (!bus.isConnected())
        return std::nullopt;
    const FetchDeadline asking = limit.sooner();
    const QStringList uids = enabledCalendars(evolutionSources(askForSources(bus, asking)));
    if (uids.isEmpty())
        return std::nullopt;
    FoundEvents found;
    for (const auto &calendar : askAll(bus, uids, window, asking)) {
        CalendarContents contents(window);
        contents.read(calendar->text());
        found.events += contents.events([&limit] { return limit.isOver(); });
        found.uids += contents.uids();
    }
    return found;
}
