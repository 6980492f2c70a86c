import QtQuick
import Pelko

/// Shows in the margin that the block can be dragged. The area of the margin handles the pointer: pressing and moving
/// drags the block, a click triggers the grip.
Item {
    id: root

    signal triggered

    function holds(item: Item, position: point) : bool {
        return visible && contains(mapFromItem(item, position))
    }

    Accessible.description: qsTr("Drag to move the block, or press Alt+Up or Alt+Down in it. A click opens its menu.")
    Accessible.name: qsTr("Move Block")
    Accessible.role: Accessible.Button
    Accessible.onPressAction: triggered()
    height: Metrics.gripHeight
    width: Metrics.gripWidth

    HoverHandler {
        id: hover

        cursorShape: Qt.OpenHandCursor
    }

    SymbolIcon {
        anchors.centerIn: parent
        color: hover.hovered ? FirePalette.inkMeta : FirePalette.grip
        name: "grip"
        size: Metrics.gripSymbol
    }
}
