#pragma once

#include "Shell/CommandListModel.h"

#include <QObject>

class AppState;

/// What the program can be told by menu and key. Commands that only change the store are carried out here;
/// what needs the window, the timers or the end of the program is asked for.
class ShellCommands : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CommandListModel *list READ list CONSTANT)

public:
    explicit ShellCommands(AppState &appState, QObject *parent = nullptr);

    /// For the menu, for the keys, and for whoever binds a command of his own.
    CommandListModel *list() { return &m_list; }

    /// Gives the command of that id. One that is unknown or disabled does nothing.
    Q_INVOKABLE void run(const QString &id);
    /// The window fills the screen, or does so no longer.
    void setFullScreen(bool on);

Q_SIGNALS:
    void menuRequested();
    void pomodoroRequested();
    void fullScreenToggled();
    void quitRequested();

private:
    void followStore();
    void bindSpaces();
    void bindRequests();
    void bind(const QString &id, CommandDeed deed) { m_list.bind(id, std::move(deed)); }

    AppState &m_appState;
    CommandListModel m_list{menuCommands()};
    bool m_isFullScreen = false;
};
