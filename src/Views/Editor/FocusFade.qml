import QtQuick
import Pelko

/// How focus mode comes and goes: everything but the page fades away, and the page glides to its place.
QtObject {
    id: fade

    property bool focused: false

    /// The opacity of everything but the page.
    property real chrome: focused ? 0 : 1
    /// How far the page is on its way to the place it has in focus mode.
    property real glide: focused ? 1 : 0

    Behavior on chrome {
        NumberAnimation { duration: Motion.reduced ? Motion.fade : 300; easing.type: Easing.InOutQuad }
    }

    Behavior on glide {
        enabled: !Motion.reduced
        NumberAnimation { duration: PelkoAnimation.smooth.duration; easing: PelkoAnimation.smooth.curve }
    }
}
