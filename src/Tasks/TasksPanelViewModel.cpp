#include "Tasks/TasksPanelViewModel.h"

#include "Services/Clock.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"
#include "Tasks/ClockFace.h"

using namespace std::chrono_literals;

namespace
{
constexpr auto tickInterval = 60s;
} // namespace

TasksPanelViewModel::TasksPanelViewModel(AppState &appState, const TasksServices &services, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_services(services)
    , m_currentTime(services.clock.now())
    , m_timeTimer(services.scheduler.every(tickInterval, [this] { tick(); }))
{
}

QString TasksPanelViewModel::time() const
{
    return ClockFace::time(m_currentTime, m_services.clock.timeZone(), m_services.locale);
}

QString TasksPanelViewModel::timeMarker() const
{
    return ClockFace::marker(m_currentTime, m_services.clock.timeZone(), m_services.locale);
}

QString TasksPanelViewModel::dateString() const
{
    return ClockFace::date(m_currentTime, m_services.clock.timeZone(), m_services.locale);
}

void TasksPanelViewModel::tick()
{
    m_currentTime = m_services.clock.now();
    Q_EMIT currentTimeChanged();
}
