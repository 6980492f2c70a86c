pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The app menu, made from the table of commands.
PopupMenu {
    id: menu

    required property MainViewModel main

    name: "Pelko"
    minimumWidth: 240

    Repeater {
        model: menu.main.menuCommands

        PopupMenuRow {
            required property var modelData

            menu: menu
            name: modelData.title
            icon.name: modelData.symbol
            keys: modelData.shortcut
            onTriggered: menu.main.run(modelData.id)
        }
    }
}
