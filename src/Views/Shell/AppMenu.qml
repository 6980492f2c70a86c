pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The app menu, made from the table of commands.
PopupMenu {
    id: appMenu

    required property MainViewModel main

    name: "Pelko"
    minimumWidth: 240

    Repeater {
        model: appMenu.main.menuCommands

        PopupMenuRow {
            required property var modelData

            menu: appMenu
            name: modelData.title
            icon.name: modelData.symbol
            keys: modelData.shortcut
            onTriggered: appMenu.main.run(modelData.id)
        }
    }
}
