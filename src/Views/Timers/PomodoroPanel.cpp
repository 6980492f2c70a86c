#include "PomodoroPanel.h"

#include "PanelWindow.h"
#include "Shell/MenuCommands.h"
#include "Timers/TimersViewModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto restBeforePreparing = 500ms;
constexpr auto settlingTime = 500ms; // until the window system has sent all events of the closing
} // namespace

PomodoroPanel::PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, Scheduler &scheduler,
                             QObject *parent)
    : QObject(parent)
    , m_timers(timers)
    , m_scheduler(scheduler)
    , m_component(&engine)
{
    connect(&m_timers, &TimersViewModel::panelOpened, this, &PomodoroPanel::open);
    connect(&m_timers, &TimersViewModel::panelClosed, this, &PomodoroPanel::close);
}

PomodoroPanel::~PomodoroPanel() = default;

void PomodoroPanel::prepareSoon()
{
    m_preparation = m_scheduler.after(restBeforePreparing, [this] { prepare(); });
}

void PomodoroPanel::prepare()
{
    if (m_window)
        return;
    // Not loaded in the constructor, which would slow down the start.
    m_component.loadUrl(QUrl(u"qrc:/qt/qml/Pelko/Views/Timers/PomodoroWindow.qml"_s));
    const auto command = std::ranges::find(MenuCommand::all(), u"pomodoro"_s, &MenuCommand::id);
    m_window.reset(qobject_cast<PanelWindow *>(m_component.createWithInitialProperties(
        {{u"panel"_s, QVariant::fromValue(&m_timers.panel())}, {u"shortcut"_s, command->shortcut}})));
    if (!m_window)
        return;
    connect(m_window.get(), &PanelWindow::left, &m_timers, &TimersViewModel::leavePanel);
    connect(m_window.get(), &PanelWindow::dismissed, &m_timers, &TimersViewModel::closePanel);
}

void PomodoroPanel::open(const QRect &opener)
{
    // A window that is shown again before its close was processed can stay hidden.
    if (!m_isResting)
        m_window.reset();
    prepare();
    if (!m_window) {
        m_timers.closePanel();
        return;
    }
    m_window->openAt(opener);
    m_timers.panel().shown();
}

void PomodoroPanel::close()
{
    if (!m_window)
        return;
    m_window->hide();
    m_timers.panel().startFresh();
    m_isResting = false;
    m_rest = m_scheduler.after(settlingTime, [this] { m_isResting = true; });
}
