import QtQuick
import Pelko

/// The context menu of a block.
PopupMenu {
    id: root

    required property bool offersDelete
    property BlockRow row: null

    readonly property bool offersFullWidth: row?.hasImage ?? false
    readonly property bool isFullWidth: row?.isFullWidth ?? false
    readonly property bool hasEntries: offersDelete || offersFullWidth

    signal fullWidthToggled(string blockID)
    signal deleteRequested(string blockID)

    name: qsTr("Block")

    PopupMenuRow {
        icon.name: root.isFullWidth ? "arrow.down.right.and.arrow.up.left" : "arrow.up.left.and.arrow.down.right"
        menu: root
        name: root.isFullWidth ? qsTr("Default Width") : qsTr("Full Width")
        visible: root.offersFullWidth
        onTriggered: root.fullWidthToggled(root.row.blockID)
    }

    PopupMenuRow {
        destroys: true
        icon.name: "trash"
        menu: root
        name: qsTr("Delete Block")
        visible: root.offersDelete
        onTriggered: root.deleteRequested(root.row.blockID)
    }
}
