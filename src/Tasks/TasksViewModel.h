#pragma once

#include "Tasks/TasksPanelViewModel.h"

/// Whether the tasks panel is available and open, and its view model, which is created each time it opens.
class TasksViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY isOfferedChanged)
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(TasksPanelViewModel *panel READ panel NOTIFY panelChanged)

public:
    TasksViewModel(AppState &appState, TasksServices services, QObject *parent = nullptr);

    /// Whether the current space has a tasks panel: only the work space.
    bool isOffered() const;
    /// Whether the user has opened the panel, even if it is not available now.
    bool isShown() const;
    bool isOpen() const { return m_isOpen; }
    /// The view model of the open panel; null once the panel has disappeared.
    TasksPanelViewModel *panel() const { return m_panel; }

    Q_INVOKABLE void toggle();
    /// Called by the view when the closed panel has disappeared; deletes its view model.
    Q_INVOKABLE void panelLeft();

Q_SIGNALS:
    void isOfferedChanged();
    void isShownChanged();
    void isOpenChanged();
    void panelChanged();

private:
    void follow();
    void update(bool isOpen, TasksPanelViewModel *panel);

    AppState &m_appState;
    const TasksServices m_services;
    bool m_isOpen = false;
    TasksPanelViewModel *m_panel = nullptr;
};
