pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The tabs of the three spaces.
Rectangle {
    id: root

    required property NavigationViewModel navigation
    readonly property real tabWidth: (width - 2 * row.x) / 3

    Accessible.name: qsTr("Spaces")
    Accessible.role: Accessible.PageTabList
    color: FirePalette.well
    implicitHeight: Metrics.spaceTabHeight + 2 * Metrics.space4
    radius: Metrics.fieldRadius + 1

    Row {
        id: row

        x: Metrics.space4
        y: Metrics.space4

        Repeater {
            model: root.navigation.spaces

            SpaceTab {
                required property int index

                keys: qsTr("Ctrl %1").arg(index + 1)
                width: root.tabWidth
                onTriggered: root.navigation.switchSpace(space)
            }
        }
    }
}
