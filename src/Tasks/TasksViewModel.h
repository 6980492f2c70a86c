#pragma once

#include "Tasks/TasksPanelViewModel.h"

/// What the main window knows of the tasks panel: whether there is one to be had, whether it is open, and the
/// panel itself, which is made anew each time it opens.
class TasksViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY isOfferedChanged)
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(TasksPanelViewModel *panel READ panel NOTIFY panelChanged)

public:
    TasksViewModel(AppState &appState, TasksServices services, QObject *parent = nullptr);

    /// The panel belongs to the work space.
    bool isOffered() const;
    /// Whether the panel is wanted, on show or not.
    bool isShown() const;
    bool isOpen() const { return m_isOpen; }
    /// The panel that was opened last, until it has left the screen; then null.
    TasksPanelViewModel *panel() const { return m_panel; }

    Q_INVOKABLE void toggle();
    /// The panel that was closed is out of sight and goes.
    Q_INVOKABLE void panelLeft();

Q_SIGNALS:
    void isOfferedChanged();
    void isShownChanged();
    void isOpenChanged();
    void panelChanged();

private:
    void follow();
    void setPanel(TasksPanelViewModel *panel);

    AppState &m_appState;
    const TasksServices m_services;
    bool m_isOpen = false;
    TasksPanelViewModel *m_panel = nullptr;
};
