#pragma once

#include "Platform/Calendar/CalendarFolders.h"

#include <QDBusConnection>
#include <QThreadPool>

/// The calendars of this desktop, looked through on a thread of their own: those of Evolution Data Server,
/// then the folders that other programs keep. Both may mirror the same account, so a UID of the server is
/// left out of the folders. When the time is up the answer is what is known by then.
class DesktopCalendarStore : public CalendarStore
{
public:
    DesktopCalendarStore(QDBusConnection bus, UserFolders folders,
                         std::chrono::milliseconds fetchTimeout = std::chrono::seconds(5));
    ~DesktopCalendarStore() override;
    Q_DISABLE_COPY_MOVE(DesktopCalendarStore)

    ScheduledCall fetch(const CalendarWindow &window, Completion completion) override;

private:
    QDBusConnection m_bus;
    UserFolders m_folders;
    std::chrono::milliseconds m_fetchTimeout;
    std::shared_ptr<void> m_lifetime;
    std::unique_ptr<QThreadPool> m_thread;
};
