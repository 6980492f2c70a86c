#include "Shell/SaveRetry.h"

#include "Services/DocumentFile.h"
#include "Store/AppState.h"

using namespace std::chrono_literals;

namespace
{
constexpr auto timeBetweenLooks = 30s;
}

SaveRetry::SaveRetry(AppState &appState, const DocumentFile &file, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_file(file)
    , m_scheduler(scheduler)
{
    connect(&m_appState, &AppState::lastSaveErrorChanged, this, &SaveRetry::followLastSave);
}

void SaveRetry::followLastSave()
{
    if (!m_appState.lastSaveError()) {
        m_looks.cancel();
        return;
    }
    m_looks = m_scheduler.every(timeBetweenLooks, [this] {
        if (m_file.canReplace())
            m_appState.saveChanges();
    });
}
