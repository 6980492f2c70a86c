import QtQuick
import Pelko

/// Five glowing embers in a row, for a space that is full.
Row {
    spacing: Metrics.space6

    Repeater {
        model: 5

        Item {
            width: 11
            height: 15

            SoftShadow {
                anchors.fill: parent
                radius: 3
                blur: 9
                color: Qt.alpha(FirePalette.amber, 0.45)
            }

            Rectangle {
                anchors.fill: parent
                radius: 3
                gradient: Gradient {
                    GradientStop { position: 0; color: FirePalette.smallFlameTop }
                    GradientStop { position: 1; color: FirePalette.smallFlameFoot }
                }
            }
        }
    }
}
