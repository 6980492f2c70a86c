#include "Shell/LaunchSequence.h"

#include "Store/ChangeScope.h"

using namespace std::chrono_literals;

LaunchSequence::LaunchSequence(Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_scheduler(scheduler)
{
}

void LaunchSequence::start()
{
    if (m_showFlame || !m_overlayVisible)
        return;
    m_sleep = m_scheduler.after(1s, [this] { removeCard(); });
    ChangeScope changes(*this);
    changes.assign(m_showFlame, true, &LaunchSequence::showFlameChanged);
    changes.assign(m_showTitle, true, &LaunchSequence::showTitleChanged);
}

void LaunchSequence::cancel()
{
    m_sleep.cancel();
    removeCard();
}

void LaunchSequence::removeCard()
{
    ChangeScope changes(*this);
    changes.assign(m_overlayVisible, false, &LaunchSequence::overlayVisibleChanged);
}
