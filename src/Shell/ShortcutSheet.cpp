#include "Shell/ShortcutSheet.h"

using namespace Qt::StringLiterals;

namespace
{
QString heading(CommandGroup group)
{
    const bool isAboutKeeping = group == CommandGroup::exports || group == CommandGroup::program;
    return isAboutKeeping ? u"Keeping"_s : u"Getting around"_s;
}

QList<ShortcutLine> linesUnder(const QString &wanted, const QList<MenuCommand> &commands)
{
    QList<ShortcutLine> lines{{.title = wanted}};
    for (const MenuCommand &command : commands) {
        if (heading(command.group) == wanted && !command.shortcut.isEmpty())
            lines.append({.title = command.title, .keys = command.shortcut.split(u'+')});
    }
    return lines;
}
} // namespace

QList<ShortcutLine> commandKeys(MenuPlace place)
{
    const QList<MenuCommand> commands = menuCommands(place);
    return linesUnder(heading(CommandGroup::documents), commands) +
           linesUnder(heading(CommandGroup::program), commands);
}

QList<ShortcutLine> writingKeys()
{
    return {
        {u"Writing"_s},
        {u"New block"_s, {u"Return"_s}},
        {u"New line in a block"_s, {u"Shift"_s, u"Return"_s}},
        {u"Join with the block above"_s, {u"Backspace"_s}},
        {u"Undo"_s, {u"Ctrl"_s, u"Z"_s}},
        {u"Redo"_s, {u"Ctrl"_s, u"Shift"_s, u"Z"_s}},
        {u"Move block up"_s, {u"Alt"_s, u"↑"_s}},
        {u"Move block down"_s, {u"Alt"_s, u"↓"_s}},
        {u"Menu of the block"_s, {u"Shift"_s, u"F10"_s}},
        {u"Leave code"_s, {u"Ctrl"_s, u"Tab"_s}},
        {u"At the start of a line"_s},
        {u"Heading"_s, {u"#"_s, u"Space"_s}},
        {u"Quote"_s, {u">"_s, u"Space"_s}},
        {u"Code"_s, {u"```"_s}},
        {u"Divider"_s, {u"---"_s}},
        {u"Checklist"_s, {u"[ ]"_s, u"Space"_s}},
    };
}
