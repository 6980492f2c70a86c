#include "Shell/MenuCommands.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

const QList<MenuCommand> &MenuCommand::all()
{
    using Group = CommandGroup;
    using Role = CommandRole;
    static const QList<MenuCommand> commands{
        {u"newDocument"_s, QT_TR_NOOP("New Document"), u"plus"_s, u"Ctrl+N"_s, Group::documents},
        {u"goTo"_s, QT_TR_NOOP("Go to…"), u"rectangle.stack"_s, u"Ctrl+K"_s, Group::documents},
        {u"save"_s, QT_TR_NOOP("Save"), u"square.and.arrow.down"_s, u"Ctrl+S"_s, Group::documents},
        {u"undo"_s, QT_TR_NOOP("Undo"), u"arrow.uturn.backward"_s, u"Ctrl+Z"_s, Group::editing},
        {u"redo"_s, QT_TR_NOOP("Redo"), u"arrow.uturn.forward"_s, u"Ctrl+Shift+Z"_s, Group::editing,
         Role::ordinary, u"Ctrl+Y"_s},
        {u"cut"_s, QT_TR_NOOP("Cut"), u"scissors"_s, u"Ctrl+X"_s, Group::editing},
        {u"copy"_s, QT_TR_NOOP("Copy"), u"doc.on.doc"_s, u"Ctrl+C"_s, Group::editing},
        {u"paste"_s, QT_TR_NOOP("Paste"), u"doc.on.clipboard"_s, u"Ctrl+V"_s, Group::editing},
        {u"selectAll"_s, QT_TR_NOOP("Select All"), u"rectangle.dashed"_s, u"Ctrl+A"_s, Group::editing},
        {u"ideas"_s, QT_TR_NOOP("Ideas"), u"lightbulb"_s, u"Ctrl+1"_s, Group::spaces},
        {u"work"_s, QT_TR_NOOP("Work"), u"briefcase"_s, u"Ctrl+2"_s, Group::spaces},
        {u"journal"_s, QT_TR_NOOP("Journal"), u"book.closed"_s, u"Ctrl+3"_s, Group::spaces},
        {u"tasks"_s, QT_TR_NOOP("Tasks"), u"sidebar.right"_s, u"Ctrl+T"_s, Group::views},
        {u"pomodoro"_s, QT_TR_NOOP("Pomodoro"), u"timer"_s, u"Ctrl+P"_s, Group::views},
        {u"focusMode"_s, QT_TR_NOOP("Focus mode"), u"text.viewfinder"_s, u"Ctrl+Shift+F"_s, Group::views},
        {u"fullScreen"_s, QT_TR_NOOP("Full screen"), u"arrow.up.left.and.arrow.down.right"_s, u"F11"_s,
         Group::views},
        {u"exportDocument"_s, QT_TR_NOOP("Export…"), u"square.and.arrow.up"_s, u"Ctrl+E"_s, Group::exports},
        {u"exportLibrary"_s, QT_TR_NOOP("Export everything…"), u"square.and.arrow.up.on.square"_s,
         u"Ctrl+Shift+E"_s, Group::exports},
        {u"copyAsMarkdown"_s, QT_TR_NOOP("Copy page as Markdown"), u"doc.on.doc"_s, u"Ctrl+Shift+C"_s,
         Group::exports},
        {u"shortcuts"_s, QT_TR_NOOP("Keyboard Shortcuts"), u"keyboard"_s, u"Ctrl+/"_s, Group::program},
        {u"about"_s, QT_TR_NOOP("About Pelko"), u"info.circle"_s, {}, Group::program, Role::about},
        {u"quit"_s, QT_TR_NOOP("Quit"), u"power"_s, u"Ctrl+Q"_s, Group::program, Role::quit},
        {u"appMenu"_s, QT_TR_NOOP("App menu"), {}, u"F10"_s, Group::none, Role::windowMenu},
    };
    return commands;
}

QString MenuCommand::title() const
{
    return tr(englishTitle);
}

QList<MenuCommand> menuCommands(MenuLocation place)
{
    QList<MenuCommand> commands;
    std::ranges::copy_if(MenuCommand::all(), std::back_inserter(commands),
                         [place](const MenuCommand &command) {
                             return place == MenuLocation::window || command.role != CommandRole::windowMenu;
                         });
    return commands;
}

std::optional<BarMenu> barMenu(CommandGroup group)
{
    switch (group) {
    case CommandGroup::documents:
    case CommandGroup::exports:
        return BarMenu::file;
    case CommandGroup::editing:
        return BarMenu::edit;
    case CommandGroup::spaces:
        return BarMenu::spaces;
    case CommandGroup::views:
        return BarMenu::view;
    case CommandGroup::program:
        return BarMenu::help;
    case CommandGroup::none:
        break;
    }
    return std::nullopt;
}

QString menuTitle(BarMenu menu)
{
    switch (menu) {
    case BarMenu::file:
        return QCoreApplication::translate("MenuBar", "File");
    case BarMenu::edit:
        return QCoreApplication::translate("MenuBar", "Edit");
    case BarMenu::spaces:
        return QCoreApplication::translate("MenuBar", "Spaces");
    case BarMenu::view:
        return QCoreApplication::translate("MenuBar", "View");
    case BarMenu::help:
        return QCoreApplication::translate("MenuBar", "Help");
    }
    Q_UNREACHABLE();
}
