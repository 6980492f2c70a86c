#pragma once

#include "Shell/CommandListModel.h"
#include "Shell/ShortcutSheet.h"

#include <QObject>

class AppState;
class NavigationViewModel;

/// What the program can be told by menu and key. Commands that only change the store are carried out here;
/// what needs the window, the timers or the end of the program is asked for.
class ShellCommands : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CommandListModel *list READ list CONSTANT)
    Q_PROPERTY(bool showShortcuts READ showShortcuts NOTIFY showShortcutsChanged)
    Q_PROPERTY(QList<ShortcutLine> commandKeys READ commandKeys CONSTANT)
    Q_PROPERTY(QList<ShortcutLine> writingKeys READ writingKeys CONSTANT)

public:
    ShellCommands(AppState &appState, NavigationViewModel &navigation, QObject *parent = nullptr);

    /// For the menu, for the keys, and for whoever binds a command of his own.
    CommandListModel *list() { return &m_list; }

    /// The sheet that lists all keys is open.
    bool showShortcuts() const { return m_showShortcuts; }
    QList<ShortcutLine> commandKeys() const { return ::commandKeys(); }
    QList<ShortcutLine> writingKeys() const { return ::writingKeys(); }

    /// Gives the command of that id. One that is unknown or disabled does nothing.
    Q_INVOKABLE void run(const QString &id);
    Q_INVOKABLE void dismissShortcuts() { setShowShortcuts(false); }
    /// The window fills the screen, or does so no longer.
    void setFullScreen(bool on);

Q_SIGNALS:
    void showShortcutsChanged();
    void menuRequested();
    void pomodoroRequested();
    void fullScreenToggled();
    void quitRequested();

private:
    void followStore();
    void bindViews();
    void bindSpaces();
    void bindRequests();
    void setShowShortcuts(bool shown);
    void bind(const QString &id, CommandDeed deed) { m_list.bind(id, std::move(deed)); }

    AppState &m_appState;
    NavigationViewModel &m_navigation;
    CommandListModel m_list{menuCommands()};
    bool m_showShortcuts = false;
    bool m_isFullScreen = false;
};
