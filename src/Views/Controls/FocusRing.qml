import QtQuick
import Pelko

/// A focus ring two pixels wide, two pixels outside of the control that it fills.
Rectangle {
    id: ring

    property bool shown: false
    property real controlRadius: 0

    anchors.fill: parent
    anchors.margins: -4
    radius: controlRadius + 4
    color: "transparent"
    border.width: 2
    border.color: FirePalette.focusRing
    opacity: shown ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.reduced ? Motion.fade : PelkoAnimation.micro.duration
            easing: PelkoAnimation.micro.curve
        }
    }
}
