#include "Shell/ShellCommands.h"

#include "Navigation/NavigationViewModel.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"

using namespace Qt::StringLiterals;

ShellCommands::ShellCommands(AppState &appState, NavigationViewModel &navigation, MenuLocation place,
                             QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_navigation(navigation)
    , m_place(place)
{
    bind(u"newDocument"_s, {.run = [this] { m_navigation.createDocument(); }});
    bind(u"shortcuts"_s, {.run = [this] { setShowShortcuts(true); }});
    bind(u"about"_s, {.run = [this] { m_appState.setShowAbout(true); }});
    bind(u"goTo"_s, {.run = [this] { m_appState.toggleNav(); }});
    bindViews();
    bindSpaces();
    bindRequests();
    bindEditing();
    followStore();
    if (hasMenuBar())
        fillMenuBar();
}

void ShellCommands::bindViews()
{
    const auto toggleFocusMode = [this] {
        // Close the navigation first, so that it restores the focus to the page.
        m_appState.setShowNav(false);
        m_appState.setFocusMode(!m_appState.focusMode());
    };
    bind(u"focusMode"_s, {.run = toggleFocusMode,
                          .isEnabled = [this] { return m_appState.openDocument().has_value(); },
                          .isTicked = [this] { return m_appState.focusMode(); }});
    const auto isOffered = [this] { return offersTasks(m_appState.currentSpace()); };
    bind(u"tasks"_s, {.run = [this] { m_appState.toggleTasksPanel(); },
                      .isEnabled = isOffered,
                      .isTicked = [this, isOffered] { return isOffered() && m_appState.showTasksPanel(); }});
}

void ShellCommands::bindSpaces()
{
    for (const Space space : allSpaces)
        bind(rawValue(space), {.run = [this, space] { m_appState.switchSpace(space); },
                               .isTicked = [this, space] { return m_appState.currentSpace() == space; }});
}

void ShellCommands::bindRequests()
{
    if (!hasMenuBar())
        bind(u"appMenu"_s, {.run = [this] { Q_EMIT menuRequested(); }});
    bind(u"pomodoro"_s, {.run = [this] { Q_EMIT pomodoroRequested(); }});
    bind(u"fullScreen"_s,
         {.run = [this] { Q_EMIT fullScreenToggled(); }, .isTicked = [this] { return m_isFullScreen; }});
    bind(u"save"_s, {.run = [this] { Q_EMIT saveRequested(); }});
    bind(u"quit"_s, {.run = [this] { Q_EMIT quitRequested(); }});
}

void ShellCommands::bindEditing()
{
    for (const MenuCommand &command : MenuCommand::all()) {
        if (command.group == CommandGroup::editing)
            bind(command.id, {.run = [this, id = command.id] { Q_EMIT editingRequested(id); }});
    }
}

void ShellCommands::fillMenuBar()
{
    for (const BarMenu menu : allBarMenus)
        m_menus.append(QVariant::fromValue(new CommandMenu(m_list, menu, this)));
}

void ShellCommands::followStore()
{
    for (const auto changed : {&AppState::currentSpaceChanged, &AppState::openDocumentIDChanged,
                               &AppState::showTasksPanelChanged, &AppState::focusModeChanged})
        connect(&m_appState, changed, &m_list, &CommandListModel::refresh);
}

void ShellCommands::run(const QString &id)
{
    m_list.run(id);
}

void ShellCommands::setShowShortcuts(bool shown)
{
    ChangeScope(*this).assign(m_showShortcuts, shown, &ShellCommands::showShortcutsChanged);
}

void ShellCommands::setFullScreen(bool on)
{
    m_isFullScreen = on;
    m_list.refresh();
}
