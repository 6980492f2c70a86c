#include "Shell/ShortcutLine.h"

#include "Shell/KeyNames.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{
struct ShortcutSheetTexts {
    Q_DECLARE_TR_FUNCTIONS(ShortcutSheet)
};

enum class Section { gettingAround, keeping, editing };

Section sectionOf(CommandGroup group)
{
    if (group == CommandGroup::editing)
        return Section::editing;
    const bool isAboutKeeping = group == CommandGroup::exports || group == CommandGroup::program;
    return isAboutKeeping ? Section::keeping : Section::gettingAround;
}

QList<ShortcutLine> shortcutLines(Section section, const QList<MenuCommand> &commands)
{
    QList<ShortcutLine> lines;
    for (const MenuCommand &command : commands) {
        if (sectionOf(command.group) == section && !command.shortcut.isEmpty())
            lines.append({.title = command.title(), .keys = keyNames(command.shortcut)});
    }
    return lines;
}
} // namespace

QList<ShortcutLine> commandKeys(MenuLocation place)
{
    const QList<MenuCommand> commands = menuCommands(place);
    return QList<ShortcutLine>{{.title = ShortcutSheetTexts::tr("Getting around")}} +
           shortcutLines(Section::gettingAround, commands) +
           //: Heading of the keys that export, and of those of the program.
           QList<ShortcutLine>{{.title = ShortcutSheetTexts::tr("Keeping")}} +
           shortcutLines(Section::keeping, commands);
}

QList<ShortcutLine> editingKeys()
{
    return shortcutLines(Section::editing, MenuCommand::all());
}

QList<ShortcutLine> typingMarkers()
{
    const QStringList space = keyNames(u"Space"_s);
    return {
        {ShortcutSheetTexts::tr("At the start of a line")},
        {ShortcutSheetTexts::tr("Heading"), QStringList{u"#"_s} + space},
        {ShortcutSheetTexts::tr("Quote"), QStringList{u">"_s} + space},
        {ShortcutSheetTexts::tr("Code"), {u"```"_s}},
        {ShortcutSheetTexts::tr("Divider"), {u"---"_s}},
        {ShortcutSheetTexts::tr("Checklist"), QStringList{u"[ ]"_s} + space},
    };
}
