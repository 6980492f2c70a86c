pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The keys of the commands, made from their table. A menu bar has those of its rows.
Item {
    id: keys

    required property ShellCommands commands

    Repeater {
        model: keys.commands.list

        // A shortcut looks for its window among items.
        delegate: Item {
            id: row

            required property string commandID
            required property string shortcut
            required property bool isInMenu
            required property bool isEnabled

            Shortcut {
                enabled: row.isEnabled && !(row.isInMenu && keys.commands.hasMenuBar)
                sequences: row.shortcut === "" ? [] : [row.shortcut]
                context: Qt.WindowShortcut
                onActivated: keys.commands.run(row.commandID)
            }
        }
    }
}
