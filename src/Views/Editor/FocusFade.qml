import QtQuick
import Pelko

/// The transition to and from focus mode: everything except the page fades, and the page moves.
QtObject {
    id: fade

    property bool focused: false

    /// The opacity of everything except the page.
    property real chrome: focused ? 0 : 1
    /// The progress of the page's movement, from 0 to 1 in focus mode.
    property real glide: focused ? 1 : 0

    Behavior on chrome {
        NumberAnimation { duration: Motion.reduced ? Motion.fade : 300; easing.type: Easing.InOutQuad }
    }

    Behavior on glide {
        enabled: !Motion.reduced
        NumberAnimation { duration: PelkoAnimation.smooth.duration; easing: PelkoAnimation.smooth.curve }
    }
}
