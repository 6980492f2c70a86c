#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <array>
#include <optional>

/// The groups of the app menu in their order, with separators between them. Commands of the group `none` have
/// only a shortcut.
enum class CommandGroup { documents, editing, spaces, views, exports, program, none };

/// The menus of the menu bar in their order.
enum class BarMenu { file, edit, spaces, view, help };
inline constexpr std::array allBarMenus{BarMenu::file, BarMenu::edit, BarMenu::spaces, BarMenu::view,
                                        BarMenu::help};

/// Roles that systems with a global menu bar treat specially.
enum class CommandRole { ordinary, about, quit, windowMenu };

/// Where the commands are offered: in the app menu of the window, or in the menu bar of the system.
enum class MenuLocation { window, menuBar };

/// A command of the program: its title and its shortcut.
struct MenuCommand {
    Q_DECLARE_TR_FUNCTIONS(MenuCommand)

public:
    QString id = {};
    /// The title before it is translated.
    const char *englishTitle = nullptr;
    QString symbol = {};
    /// In Qt's portable format, where "Ctrl" is Command on a Mac; empty for none.
    QString shortcut = {};
    CommandGroup group = CommandGroup::none;
    CommandRole role = CommandRole::ordinary;
    /// A second shortcut, which is not shown.
    QString otherShortcut = {};

    QString title() const;

    /// All commands in the order of the menu. The app menu, the menu bar, the shortcuts and the shortcut
    /// sheet are generated from this table.
    static const QList<MenuCommand> &all();
};

/// Returns the commands that apply to the location.
QList<MenuCommand> menuCommands(MenuLocation place);

/// Returns the menu of the menu bar that contains the group, or std::nullopt for `none`. Groups may share a
/// menu.
std::optional<BarMenu> barMenu(CommandGroup group);

QString menuTitle(BarMenu menu);
