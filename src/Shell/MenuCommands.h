#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <array>
#include <optional>

/// The groups of the app menu, in its order, with a hairline between any two. What belongs to none is given
/// by its key alone.
enum class CommandGroup { documents, editing, spaces, views, exports, program, none };

/// The menus of the menu bar, in its order.
enum class BarMenu { file, edit, spaces, view, help };
inline constexpr std::array allBarMenus{BarMenu::file, BarMenu::edit, BarMenu::spaces, BarMenu::view,
                                        BarMenu::help};

/// Roles that systems with a global menu bar treat specially.
enum class CommandRole { ordinary, about, quit, windowMenu };

/// Where the commands are offered: behind a button of the window, or in the menu bar of the system.
enum class MenuLocation { window, menuBar };

/// A command of the program: its title and its key.
struct MenuCommand {
    Q_DECLARE_TR_FUNCTIONS(MenuCommand)

public:
    QString id = {};
    /// The title before it is translated.
    const char *englishTitle = nullptr;
    QString symbol = {};
    /// In portable words, where "Ctrl" is Command on a Mac; empty for none.
    QString shortcut = {};
    CommandGroup group = CommandGroup::none;
    CommandRole role = CommandRole::ordinary;
    /// A second key, not shown anywhere.
    QString otherShortcut = {};

    QString title() const;

    /// Every command, in the order of the menu. The app menu, the keys and the sheet of keys are all made
    /// from it.
    static const QList<MenuCommand> &all();
};

/// Those that make sense where the commands are offered there.
QList<MenuCommand> menuCommands(MenuLocation place);

/// The menu that holds the group in a menu bar. Groups may share one; what belongs to none is in none.
std::optional<BarMenu> barMenu(CommandGroup group);

QString menuTitle(BarMenu menu);
