import QtQuick
import Pelko

/// Shows in the margin that the block can be taken here. The margin itself takes it; a click opens its menu.
Item {
    id: root

    signal triggered

    Accessible.description: qsTr("Drag, or press Alt+Up or Alt+Down")
    Accessible.name: qsTr("Move")
    Accessible.role: Accessible.Grip
    Accessible.onPressAction: triggered()
    height: Metrics.gripHeight
    width: Metrics.gripWidth

    HoverHandler {
        id: hover

        cursorShape: Qt.OpenHandCursor
    }

    TapHandler {
        onTapped: root.triggered()
    }

    SymbolIcon {
        anchors.centerIn: parent
        color: hover.hovered ? FirePalette.inkMeta : FirePalette.grip
        name: "grip"
        size: Metrics.gripSymbol
    }
}
