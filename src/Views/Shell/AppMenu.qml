pragma ComponentBehavior: Bound

import QtQuick
import Qt.labs.qmlmodels
import Pelko

/// The app menu, generated from the table of commands.
PopupMenu {
    id: appMenu

    required property ShellCommands commands

    // While the menu is open, shortcuts do not work, including the one that opened it.
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F10 && event.modifiers === Qt.NoModifier)
            close()
    }
    name: "Pelko"
    minimumWidth: 240

    Repeater {
        model: appMenu.commands.list

        delegate: DelegateChooser {
            role: "kind"

            DelegateChoice {
                roleValue: "separator"

                PopupMenuSeparator {}
            }

            DelegateChoice {
                roleValue: "command"

                PopupMenuRow {
                    required property string commandID
                    required property string title
                    required property string symbol
                    required property string keyText
                    required property bool isInMenu
                    required property bool isEditing
                    required property bool isEnabled
                    required property bool isTickable
                    required property bool isTicked

                    menu: appMenu
                    visible: isInMenu
                    enabled: isEnabled
                    name: title
                    icon.name: symbol
                    keys: isEditing ? "" : keyText
                    perLine: isEditing ? 2 : 1
                    tickable: isTickable
                    ticked: isTicked
                    onTriggered: appMenu.commands.run(commandID)
                }
            }
        }
    }
}
