#include "Shell/ShortcutLine.h"

using namespace Qt::StringLiterals;

namespace
{
QString heading(CommandGroup group)
{
    if (group == CommandGroup::editing)
        return {};
    const bool isAboutKeeping = group == CommandGroup::exports || group == CommandGroup::program;
    return isAboutKeeping ? u"Keeping"_s : u"Getting around"_s;
}

/// Of the commands that stand under that heading.
QList<ShortcutLine> linesUnder(const QString &wanted, const QList<MenuCommand> &commands)
{
    QList<ShortcutLine> lines;
    for (const MenuCommand &command : commands) {
        if (heading(command.group) == wanted && !command.shortcut.isEmpty())
            lines.append({.title = command.title, .keys = command.shortcut.split(u'+')});
    }
    return lines;
}
} // namespace

QList<ShortcutLine> commandKeys(MenuLocation place)
{
    const QList<MenuCommand> commands = menuCommands(place);
    QList<ShortcutLine> lines;
    for (const QString &title : {heading(CommandGroup::documents), heading(CommandGroup::program)})
        lines += QList<ShortcutLine>{{.title = title}} + linesUnder(title, commands);
    return lines;
}

QList<ShortcutLine> editingKeys()
{
    return linesUnder(heading(CommandGroup::editing), menuCommands());
}

QList<ShortcutLine> typingMarkers()
{
    return {
        {u"At the start of a line"_s},      {u"Heading"_s, {u"#"_s, u"Space"_s}},
        {u"Quote"_s, {u">"_s, u"Space"_s}}, {u"Code"_s, {u"```"_s}},
        {u"Divider"_s, {u"---"_s}},         {u"Checklist"_s, {u"[ ]"_s, u"Space"_s}},
    };
}
