import QtQuick
import Pelko

/// Shows over a block that all of it is selected.
Item {
    id: root

    required property string blockID
    required property string kind
    required property BlockEditor block
    required property PageCaret caret

    BlockPlace {
        id: place

        blockID: root.blockID
        item: root.block
        page: root.caret
    }

    Rectangle {
        // A rule alone is too thin to be seen selected.
        anchors { fill: parent; margins: root.kind === "divider" ? -Metrics.space8 : 0 }
        color: FirePalette.selection
        radius: root.kind === "sticky" ? Metrics.stickyRadius : Metrics.pictureRadius
        visible: place.covered
    }
}
