#pragma once

#include <QList>
#include <QString>

/// The groups of the app menu, in its order, with a hairline between any two. What belongs to none is given
/// by its key alone.
enum class CommandGroup { documents, editing, spaces, views, exports, program, none };

/// What a command is to a system that knows some of them and gives those a place of its own.
enum class CommandRole { ordinary, about, quit, windowMenu };

/// Where the commands are offered: behind a button of the window, or in the menu bar of the system.
enum class MenuLocation { window, menuBar };

/// One command of the program: what it is called wherever it is offered, and its key when it has one.
struct MenuCommand {
    QString id = {};
    QString title = {};
    QString symbol = {};
    /// In portable words, where "Ctrl" is Command on a Mac; empty for none.
    QString shortcut = {};
    CommandGroup group = CommandGroup::none;
    CommandRole role = CommandRole::ordinary;
    /// A second key for it, told of nowhere.
    QString otherShortcut = {};
};

/// Every command, in the order of the menu. The app menu, the keys and the sheet of keys are all made from
/// it.
const QList<MenuCommand> &menuCommands();

/// Those that make sense where the commands are offered there.
QList<MenuCommand> menuCommands(MenuLocation place);

/// The title of the menu that holds the group in a menu bar. Groups may share one.
QString menuTitle(CommandGroup group);

/// The titles of all its menus, in their order.
QStringList menuTitles();
