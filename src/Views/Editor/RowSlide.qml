import QtQuick
import Pelko

/// Lets a row glide to its new place when blocks change places. With everything else that moves it, growing
/// text above or a page that is laid out anew, the row goes along at once.
Translate {
    id: root

    required property PageContext page
    /// Where the block of the row stands on the page.
    required property real place

    property bool gliding: false

    readonly property SpringFollower follower: SpringFollower {
        carried: !root.gliding
        dampingFraction: 0.85
        goal: root.place
        instant: Motion.reduced
        response: 0.35
    }
    // Rows that are made while others change places have no place to come from.
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
