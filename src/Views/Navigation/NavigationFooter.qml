import QtQuick
import Pelko

/// The keys of the navigation overlay, below a line.
Item {
    implicitHeight: Metrics.overlayFoot

    Rectangle {
        color: FirePalette.hairline
        height: 1
        width: parent.width
    }

    Row {
        anchors { left: parent.left; leftMargin: Metrics.space8; verticalCenter: parent.verticalCenter }
        spacing: Metrics.space20

        KeyHint { key: "↑ ↓"; does: qsTr("Choose") }
        KeyHint { key: qsTr("Return"); does: qsTr("Open") }
        KeyHint { key: qsTr("Del"); does: qsTr("Delete") }
    }

    KeyHint {
        anchors { right: parent.right; rightMargin: Metrics.space8; verticalCenter: parent.verticalCenter }
        does: qsTr("New Document")
        key: qsTr("Ctrl N")
    }
}
