#include "Shell/QuitGuard.h"

#include "Store/AppState.h"
#include "Store/ChangeScope.h"

QuitGuard::QuitGuard(AppState &appState, QObject *parent) : QObject(parent), m_appState(appState) {}

bool QuitGuard::mayQuit()
{
    m_appState.saveChanges();
    m_appState.confirmSave();
    const std::optional<QString> error = m_appState.lastSaveError();
    if (!error || m_mayLoseChanges)
        return true;
    ChangeScope changes(*this);
    changes.assign(m_reason, *error, &QuitGuard::reasonChanged);
    changes.assign(m_asks, true, &QuitGuard::asksChanged);
    m_appState.clearLastError(); // the question names the error
    return false;
}

void QuitGuard::quitAnyway()
{
    m_mayLoseChanges = true;
    stay();
    Q_EMIT quitRequested();
}

void QuitGuard::stay()
{
    ChangeScope(*this).assign(m_asks, false, &QuitGuard::asksChanged);
}
