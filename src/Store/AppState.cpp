#include "Store/AppState.h"

AppState::AppState(Scheduler &scheduler, const Clock &clock, DocumentFile &file)
    : m_scheduler(scheduler)
    , m_clock(clock)
    , m_file(file)
{
}

AppState::~AppState() = default;
