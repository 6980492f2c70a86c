#include "Platform/Calendar/DesktopCalendarStore.h"

#include "Platform/Calendar/EvolutionCalendars.h"

#include <QCoreApplication>

#include <tuple>

using namespace std::chrono_literals;

namespace
{
constexpr auto longestFarewell = 2s;
} // namespace

DesktopCalendarStore::DesktopCalendarStore(QDBusConnection bus, UserFolders folders,
                                           std::chrono::milliseconds fetchTimeout)
    : m_bus(std::move(bus))
    , m_folders(std::move(folders))
    , m_fetchTimeout(fetchTimeout)
    , m_lifetime(std::make_shared<int>())
    , m_thread(std::make_unique<QThreadPool>())
{
    m_thread->setMaxThreadCount(1);
}

DesktopCalendarStore::~DesktopCalendarStore()
{
    m_lifetime.reset();
    // A network disk may block the thread for any time, but must not delay the end of the program: the thread
    // is then abandoned.
    if (!m_thread->waitForDone(int(std::chrono::milliseconds(longestFarewell).count())))
        std::ignore = m_thread.release();
}

ScheduledCall DesktopCalendarStore::fetch(const CalendarWindow &window, Completion completion)
{
    const auto request = std::make_shared<Completion>(std::move(completion));
    const FetchDeadline limit(m_fetchTimeout, request, m_lifetime);
    m_thread->start([waiting = std::weak_ptr(request), limit, window, bus = m_bus, folders = m_folders] {
        if (!limit.isWanted())
            return;
        const auto server = evolutionEvents(bus, window, limit);
        const QSet<QByteArray> known = server ? server->uids : QSet<QByteArray>();
        Answer answer = CalendarFolders::events(folders, window, limit, known);
        if (server)
            answer = server->events + answer.value_or(QList<CalendarEvent>());
        if (!limit.isWanted())
            return;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [waiting, answer] {
                if (const auto tell = waiting.lock())
                    (*tell)(answer);
            },
            Qt::QueuedConnection);
    });
    return ScheduledCall(request);
}
