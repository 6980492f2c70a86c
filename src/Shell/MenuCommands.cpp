#include "Shell/MenuCommands.h"

using namespace Qt::StringLiterals;

const QList<MenuCommand> &menuCommands()
{
    static const QList<MenuCommand> commands{
        {u"newDocument"_s, u"New Document"_s, u"plus"_s, u"Ctrl+N"_s},
        {u"about"_s, u"About Pelko"_s, u"info.circle"_s, {}},
        {u"quit"_s, u"Quit"_s, u"power"_s, u"Ctrl+Q"_s},
    };
    return commands;
}
