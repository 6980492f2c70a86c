import QtQuick
import Pelko

/// The overlay of a block that is selected as a whole.
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
        // The line of a divider is too thin to show a selection.
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        color: FirePalette.selection
        height: Math.max(parent.height, Metrics.space12)
        radius: Math.min(root.block.cornerRadius, height / 4)
        visible: place.covered
    }
}
