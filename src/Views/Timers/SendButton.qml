import QtQuick
import Pelko

/// Submits the spark. Dimmed if there is nothing to submit.
PressableControl {
    id: button

    name: qsTr("Send")
    implicitWidth: 22
    implicitHeight: 22

    background: Rectangle {
        radius: height / 2
        color: FirePalette.smallFlameMiddle

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: FirePalette.white(0.10 * Math.min(1, button.hoverAmount))
        }
    }

    SymbolIcon {
        anchors.centerIn: parent
        name: "arrow.up"
        size: 11
        color: FirePalette.deepBackground
    }
}
