#include "Shell/MenuCommands.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

const QList<MenuCommand> &menuCommands()
{
    using Group = CommandGroup;
    using Role = CommandRole;
    static const QList<MenuCommand> commands{
        {u"newDocument"_s, u"New Document"_s, u"plus"_s, u"Ctrl+N"_s, Group::documents},
        {u"goTo"_s, u"Go to…"_s, u"rectangle.stack"_s, u"Ctrl+K"_s, Group::documents},
        {u"save"_s, u"Save"_s, u"square.and.arrow.down"_s, u"Ctrl+S"_s, Group::documents},
        {u"undo"_s, u"Undo"_s, u"arrow.uturn.backward"_s, u"Ctrl+Z"_s, Group::editing},
        {u"redo"_s, u"Redo"_s, u"arrow.uturn.forward"_s, u"Ctrl+Shift+Z"_s, Group::editing, Role::ordinary,
         u"Ctrl+Y"_s},
        {u"cut"_s, u"Cut"_s, u"scissors"_s, u"Ctrl+X"_s, Group::editing},
        {u"copy"_s, u"Copy"_s, u"doc.on.doc"_s, u"Ctrl+C"_s, Group::editing},
        {u"paste"_s, u"Paste"_s, u"doc.on.clipboard"_s, u"Ctrl+V"_s, Group::editing},
        {u"selectAll"_s, u"Select All"_s, u"rectangle.dashed"_s, u"Ctrl+A"_s, Group::editing},
        {u"ideas"_s, u"Ideas"_s, u"lightbulb"_s, u"Ctrl+1"_s, Group::spaces},
        {u"work"_s, u"Work"_s, u"briefcase"_s, u"Ctrl+2"_s, Group::spaces},
        {u"journal"_s, u"Journal"_s, u"book.closed"_s, u"Ctrl+3"_s, Group::spaces},
        {u"tasks"_s, u"Tasks"_s, u"sidebar.right"_s, u"Ctrl+T"_s, Group::views},
        {u"pomodoro"_s, u"Pomodoro"_s, u"timer"_s, u"Ctrl+P"_s, Group::views},
        {u"focusMode"_s, u"Focus mode"_s, u"text.viewfinder"_s, u"Ctrl+Shift+F"_s, Group::views},
        {u"fullScreen"_s, u"Full screen"_s, u"arrow.up.left.and.arrow.down.right"_s, u"F11"_s, Group::views},
        {u"exportDocument"_s, u"Export…"_s, u"square.and.arrow.up"_s, u"Ctrl+E"_s, Group::exports},
        {u"exportLibrary"_s, u"Export everything…"_s, u"square.and.arrow.up.on.square"_s, u"Ctrl+Shift+E"_s,
         Group::exports},
        {u"copyAsMarkdown"_s, u"Copy page as Markdown"_s, u"doc.on.doc"_s, u"Ctrl+Shift+C"_s, Group::exports},
        {u"shortcuts"_s, u"Keyboard Shortcuts"_s, u"keyboard"_s, u"Ctrl+/"_s, Group::program},
        {u"about"_s, u"About Pelko"_s, u"info.circle"_s, {}, Group::program, Role::about},
        {u"quit"_s, u"Quit"_s, u"power"_s, u"Ctrl+Q"_s, Group::program, Role::quit},
        {u"appMenu"_s, u"App menu"_s, {}, u"F10"_s, Group::none, Role::windowMenu},
    };
    return commands;
}

QList<MenuCommand> menuCommands(MenuLocation place)
{
    QList<MenuCommand> commands;
    std::ranges::copy_if(menuCommands(), std::back_inserter(commands), [place](const MenuCommand &command) {
        return place == MenuLocation::window || command.role != CommandRole::windowMenu;
    });
    return commands;
}

QString menuTitle(CommandGroup group)
{
    switch (group) {
    case CommandGroup::documents:
    case CommandGroup::exports:
        return u"File"_s;
    case CommandGroup::editing:
        return u"Edit"_s;
    case CommandGroup::spaces:
        return u"Spaces"_s;
    case CommandGroup::views:
        return u"View"_s;
    case CommandGroup::program:
        return u"Help"_s;
    case CommandGroup::none:
        break;
    }
    return {};
}

QStringList menuTitles()
{
    QStringList titles;
    for (const MenuCommand &command : menuCommands()) {
        const QString title = menuTitle(command.group);
        if (!title.isEmpty() && !titles.contains(title))
            titles.append(title);
    }
    return titles;
}
