#pragma once

#include <QList>
#include <QString>

/// The groups of the app menu, in its order, with a hairline between any two. What belongs to none is given
/// by its key alone.
enum class CommandGroup { documents, spaces, views, exports, program, none };

/// One command of the program: what it is called wherever it is offered, and its key when it has one.
struct MenuCommand {
    QString id;
    QString title;
    QString symbol;
    /// In portable words, where "Ctrl" is Command on a Mac; empty for none.
    QString shortcut;
    CommandGroup group = CommandGroup::none;
};

/// Every command, in the order of the menu. The app menu, the keys and the sheet of keys are all made from
/// it.
const QList<MenuCommand> &menuCommands();
