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
    return offersTasks(m_appState.currentSpace());
}

bool TasksViewModel::isShown() const
{
    return m_appState.showTasksPanel();
}

void TasksViewModel::toggle()
{
    m_appState.toggleTasksPanel();
}

void TasksViewModel::panelLeft()
{
    if (!m_isOpen)
        update(false, nullptr);
}

void TasksViewModel::follow()
{
    const bool isOpen = isShown() && isOffered();
    update(isOpen, isOpen && !m_isOpen ? new TasksPanelViewModel(m_appState, m_services, this) : m_panel);
}

void TasksViewModel::update(bool isOpen, TasksPanelViewModel *panel)
{
    TasksPanelViewModel *before = m_panel;
    {
        // Set both before either is announced: the closing animation of the old view may end meanwhile.
        ChangeScope changes(*this);
        changes.assign(m_panel, panel, &TasksViewModel::panelChanged);
        changes.assign(m_isOpen, isOpen, &TasksViewModel::isOpenChanged);
    }
    // The view is deleted later, by the event loop, so the view model must outlive it.
    if (before && before != panel)
        before->deleteLater();
}
