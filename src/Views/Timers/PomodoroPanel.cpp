#include "PomodoroPanel.h"

#include "PanelWindow.h"
#include "Timers/PomodoroViewModel.h"
#include "Timers/TimersViewModel.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto restAfterClosing = 500ms;
}

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

PomodoroPanel::~PomodoroPanel()
{
    delete m_window;
}

PanelWindow *PomodoroPanel::window() const
{
    return m_window;
}

void PomodoroPanel::prepareSoon()
{
    m_preparation = m_scheduler.after(restAfterClosing, [this] { prepare(); });
}

void PomodoroPanel::prepare()
{
    if (m_window)
        return;
    // Not before it is wanted: the start of the program has other things to do.
    if (m_component.isNull())
        m_component.loadUrl(QUrl(u"qrc:/qt/qml/Pelko/Views/Timers/PomodoroWindow.qml"_s));
    PomodoroViewModel *panel = m_timers.makePanel(nullptr);
    m_window = qobject_cast<PanelWindow *>(
        m_component.createWithInitialProperties({{u"panel"_s, QVariant::fromValue(panel)}}));
    if (!m_window) {
        delete panel;
        return;
    }
    panel->setParent(m_window);
    m_panel = panel;
    connect(m_window, &PanelWindow::dismissed, &m_timers, &TimersViewModel::leavePanel);
}

void PomodoroPanel::open(const QRect &opener)
{
    prepare();
    if (!m_window) {
        m_timers.closePanel();
        return;
    }
    m_window->openAt(opener);
    m_panel->shown();
}

void PomodoroPanel::close()
{
    if (!m_window)
        return;
    m_window->hide();
    // Whoever closes it may stand inside it.
    m_window->deleteLater();
    m_window.clear();
    prepareSoon();
}
