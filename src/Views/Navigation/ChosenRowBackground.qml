import QtQuick
import Pelko

/// The warm ground of the chosen row of a list; a faint one under the pointer.
Item {
    id: root

    required property bool chosen
    required property bool pointedAt

    Rectangle {
        anchors.fill: parent
        color: FirePalette.rowHover
        radius: Metrics.listRowRadius
        visible: root.pointedAt && !root.chosen
    }

    Rectangle {
        anchors.fill: parent
        border.color: FirePalette.chosenRowHairline
        radius: Metrics.listRowRadius
        visible: root.chosen

        gradient: Gradient {
            GradientStop { position: 0; color: FirePalette.chosenRowTop }
            GradientStop { position: 1; color: FirePalette.chosenRowFoot }
        }
    }
}
