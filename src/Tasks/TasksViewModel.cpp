#include "Tasks/TasksViewModel.h"

#include "Store/AppState.h"
#include "Store/ChangeScope.h"

TasksViewModel::TasksViewModel(AppState &appState, TasksServices services, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_services(std::move(services))
{
    connect(&m_appState, &AppState::showTasksPanelChanged, this, &TasksViewModel::isShownChanged);
    connect(&m_appState, &AppState::currentSpaceChanged, this, &TasksViewModel::isOfferedChanged);
    connect(&m_appState, &AppState::showTasksPanelChanged, this, &TasksViewModel::follow);
    connect(&m_appState, &AppState::currentSpaceChanged, this, &TasksViewModel::follow);
    follow();
}

bool TasksViewModel::isOffered() const
{
    return m_appState.currentSpace() == Space::work;
}

bool TasksViewModel::isShown() const
{
    return m_appState.showTasksPanel();
}

void TasksViewModel::toggle()
{
    m_appState.setShowTasksPanel(!m_appState.showTasksPanel());
}

void TasksViewModel::panelLeft()
{
    if (!m_isOpen)
        setPanel(nullptr);
}

void TasksViewModel::follow()
{
    const bool isOpen = isShown() && isOffered();
    if (isOpen && !m_isOpen)
        setPanel(new TasksPanelViewModel(m_appState, m_services, this));
    ChangeScope(*this).assign(m_isOpen, isOpen, &TasksViewModel::isOpenChanged);
}

void TasksViewModel::setPanel(TasksPanelViewModel *panel)
{
    TasksPanelViewModel *before = m_panel;
    ChangeScope(*this).assign(m_panel, panel, &TasksViewModel::panelChanged);
    // The view is deleted later, by the event loop, so the view model must outlive it.
    if (before && before != panel)
        before->deleteLater();
}
