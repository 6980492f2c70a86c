import QtQuick
import Pelko

/// The background of a list row: warm if it is selected, faint under the pointer.
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
