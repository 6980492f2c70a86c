#pragma once

#include "Shell/CommandMenu.h"
#include "Shell/ShortcutLine.h"

#include <QObject>
#include <QVariantList>

class AppState;
class NavigationViewModel;

/// Runs the commands of menus and shortcuts. Commands that only change the store are run here; signals
/// request the ones that need the window, the timers or the end of the program.
class ShellCommands : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CommandListModel *list READ list CONSTANT)
    Q_PROPERTY(QVariantList menus READ menus CONSTANT)
    Q_PROPERTY(bool hasMenuBar READ hasMenuBar CONSTANT)
    Q_PROPERTY(bool showShortcuts READ showShortcuts NOTIFY showShortcutsChanged)
    Q_PROPERTY(QList<ShortcutLine> commandKeys READ commandKeys CONSTANT)

public:
    ShellCommands(AppState &appState, NavigationViewModel &navigation,
                  MenuLocation place = MenuLocation::window, QObject *parent = nullptr);

    /// The commands, for menus, shortcuts and bind().
    CommandListModel *list() { return &m_list; }

    /// Whether the system has a menu bar. It then offers the commands and handles their shortcuts.
    bool hasMenuBar() const { return m_place == MenuLocation::menuBar; }
    /// The menus of that bar, as `CommandMenu`.
    QVariantList menus() const { return m_menus; }

    /// Whether the shortcut sheet is open.
    bool showShortcuts() const { return m_showShortcuts; }
    QList<ShortcutLine> commandKeys() const { return ::commandKeys(m_place); }

    /// Runs the command. Does nothing if it is unknown or disabled.
    Q_INVOKABLE void run(const QString &id);
    Q_INVOKABLE void dismissShortcuts() { setShowShortcuts(false); }
    /// Call it when the window enters or leaves full screen.
    void setFullScreen(bool on);

Q_SIGNALS:
    void showShortcutsChanged();
    void menuRequested();
    void pomodoroRequested();
    void fullScreenToggled();
    void saveRequested();
    /// An editing command must be run by the item that has the focus. `id` is the command.
    void editingRequested(const QString &id);
    void quitRequested();

private:
    void followStore();
    void bindViews();
    void bindSpaces();
    void bindRequests();
    void bindEditing();
    void fillMenuBar();
    void setShowShortcuts(bool shown);
    void bind(const QString &id, CommandAction action) { m_list.bind(id, std::move(action)); }

    AppState &m_appState;
    NavigationViewModel &m_navigation;
    MenuLocation m_place;
    CommandListModel m_list{menuCommands(m_place)};
    QVariantList m_menus;
    bool m_showShortcuts = false;
    bool m_isFullScreen = false;
};
