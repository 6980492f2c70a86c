pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import Qt.labs.platform as Platform
import Pelko

/// The commands in the global menu bar, created from their table. The platform moves About and Quit to the application
/// menu. The menus also define the shortcuts.
Platform.MenuBar {
    id: bar

    required property ShellCommands commands

    Instantiator {
        model: bar.commands.menus
        onObjectAdded: (index, menu) => bar.insertMenu(index, menu)
        onObjectRemoved: (index, menu) => bar.removeMenu(menu)

        delegate: Platform.Menu {
            id: menu

            required property CommandMenu modelData

            title: modelData.title

            Instantiator {
                model: menu.modelData
                onObjectAdded: (index, item) => menu.insertItem(index, item)
                onObjectRemoved: (index, item) => menu.removeItem(item)

                delegate: Platform.MenuItem {
                    required property string kind
                    required property string commandID
                    required property string title
                    required property string systemRole
                    required property bool isEnabled
                    required property bool isTickable
                    required property bool isTicked
                    required shortcut

                    separator: kind === "separator"
                    text: title
                    role: systemRole === "about" ? Platform.MenuItem.AboutRole
                          : systemRole === "quit" ? Platform.MenuItem.QuitRole : Platform.MenuItem.NoRole
                    enabled: isEnabled
                    checkable: isTickable
                    checked: isTicked
                    onTriggered: {
                        bar.commands.run(commandID)
                        // The menu has toggled the tick itself; the command may not have changed.
                        checked = Qt.binding(() => isTicked)
                    }
                }
            }
        }
    }
}
