import QtQuick
import Pelko

/// The context menu of a block.
PopupMenu {
    id: root

    required property bool offersDelete
    readonly property bool hasEntries: offersDelete

    signal deleteRequested

    name: qsTr("Block")

    PopupMenuRow {
        destroys: true
        icon.name: "trash"
        menu: root
        name: qsTr("Delete Block")
        visible: root.offersDelete
        onTriggered: root.deleteRequested()
    }
}
