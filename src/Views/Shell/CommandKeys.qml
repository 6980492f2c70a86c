pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The keys of the commands, made from their table. A menu bar has those of its rows.
Instantiator {
    id: keys

    required property ShellCommands commands

    model: commands.list

    delegate: Shortcut {
        required property string commandID
        required property string shortcut
        required property string otherShortcut
        required property bool isInMenu
        required property bool isEnabled

        enabled: isEnabled && !(isInMenu && keys.commands.hasMenuBar)
        sequences: [shortcut, otherShortcut]
        context: Qt.WindowShortcut
        onActivated: keys.commands.run(commandID)
    }
}
