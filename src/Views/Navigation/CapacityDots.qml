pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// Five dots for the places of a space; those of existing pages glow.
Row {
    id: root

    required property int taken

    Accessible.ignored: true
    spacing: Metrics.space4

    Repeater {
        model: 5

        Rectangle {
            required property int index

            color: index < root.taken ? FirePalette.amber : FirePalette.white(0.2)
            height: width
            radius: width / 2
            width: Metrics.placeDot
        }
    }
}
