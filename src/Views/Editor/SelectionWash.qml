import QtQuick
import Pelko

/// Shows over a block that all of it is selected.
Item {
    id: root

    required property string blockID
    required property Item row
    required property BlockEditor block
    required property PageCaret caret

    BlockPlace {
        id: place

        blockID: root.blockID
        control: root.block.control
        item: root.block
        page: root.caret
        row: root.row
    }

    Rectangle {
        // A rule alone is too thin to be seen selected.
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        color: FirePalette.selection
        height: Math.max(parent.height, Metrics.space12)
        radius: Math.min(root.block.cornerRadius, height / 4)
        visible: place.covered
    }
}
