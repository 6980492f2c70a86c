#pragma once

#include "Platform/Calendar/CalendarFolders.h"

#include <QDBusConnection>
#include <QThreadPool>

/// Reads the calendars of Evolution Data Server, then the calendar folders, on a worker thread. Both may
/// mirror the same account, so events of the folders whose UID the server has are skipped. After the timeout
/// it returns the events found so far.
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
