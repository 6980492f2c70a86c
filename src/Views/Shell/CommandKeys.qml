pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The shortcuts of the commands. A menu bar has its own.
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
