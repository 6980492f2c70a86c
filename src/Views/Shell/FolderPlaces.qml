pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The list of standard folders.
Column {
    id: root

    required property FolderChooser chooser

    Accessible.name: qsTr("Places")
    Accessible.role: Accessible.List
    spacing: Metrics.space2

    Repeater {
        model: root.chooser.places

        FolderRowButton {
            id: place

            required property int index
            required property string modelData

            chosen: root.chooser.place === index
            name: modelData
            symbol: "folder"
            width: root.width
            onTriggered: root.chooser.goToPlace(index)
        }
    }
}
