#include "PomodoroPanel.h"

#include "PanelWindow.h"
#include "Timers/PomodoroViewModel.h"
#include "Timers/TimersViewModel.h"
#include "Views/TakeDown.h"

using namespace Qt::StringLiterals;

PomodoroPanel::PomodoroPanel(QQmlEngine &engine, TimersViewModel &timers, QObject *parent)
    : QObject(parent)
    , m_timers(timers)
    , m_component(&engine)
{
    connect(&m_timers, &TimersViewModel::panelOpened, this, &PomodoroPanel::open);
    connect(&m_timers, &TimersViewModel::panelClosed, this, &PomodoroPanel::close);
}

PomodoroPanel::~PomodoroPanel()
{
    if (m_window)
        takeDown(*m_window);
    delete m_window;
}

PanelWindow *PomodoroPanel::window() const
{
    return m_window;
}

void PomodoroPanel::open(const QRect &opener)
{
    // Not before it is wanted: the start of the program has other things to do.
    if (m_component.isNull())
        m_component.loadUrl(QUrl(u"qrc:/qt/qml/Pelko/Views/Timers/PomodoroWindow.qml"_s));
    PomodoroViewModel *panel = m_timers.makePanel(nullptr);
    m_window = qobject_cast<PanelWindow *>(
        m_component.createWithInitialProperties({{u"panel"_s, QVariant::fromValue(panel)}}));
    if (!m_window) {
        delete panel;
        m_timers.closePanel();
        return;
    }
    panel->setParent(m_window);
    connect(m_window, &PanelWindow::dismissed, &m_timers, &TimersViewModel::leavePanel);
    m_window->openAt(opener);
    panel->shown();
}

void PomodoroPanel::close()
{
    if (!m_window)
        return;
    m_window->hide();
    // Whoever closes it may stand inside it.
    m_window->deleteLater();
    m_window.clear();
}
