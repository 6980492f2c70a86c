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

QList<ShortcutLine> typingMarkers()
{
    return {
        {u"At the start of a line"_s},      {u"Heading"_s, {u"#"_s, u"Space"_s}},
        {u"Quote"_s, {u">"_s, u"Space"_s}}, {u"Code"_s, {u"```"_s}},
        {u"Divider"_s, {u"---"_s}},         {u"Checklist"_s, {u"[ ]"_s, u"Space"_s}},
    };
}
