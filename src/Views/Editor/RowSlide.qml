import QtQuick
import Pelko

/// Animates a row to its new place when blocks are reordered. Other movements, such as by growing text above, are not
/// animated.
Translate {
    id: root

    required property PageContext page
    /// The row of the block on the page.
    required property real place

    property bool gliding: false

    readonly property SpringFollower follower: SpringFollower {
        carried: !root.gliding
        dampingFraction: 0.85
        goal: root.place
        instant: Motion.reduced
        response: 0.35
    }
    // Rows that are created during a reordering have no old place.
    readonly property Connections reordering: Connections {
        function onReorderBegan() {
            root.gliding = true
        }

        function onReorderEnded() {
            root.gliding = false
        }

        target: root.page
    }

    y: follower.value - place
}
