import QtQuick
import Pelko

/// The background of a field of one line; with a warm outline and a glow while the field has the focus.
Rectangle {
    id: plate

    required property bool active

    readonly property int fade: Motion.reduced ? Motion.fade : PelkoAnimation.micro.duration

    radius: Metrics.fieldRadius
    color: FirePalette.white(active ? 0.085 : 0.045)
    border.color: active ? Qt.alpha(FirePalette.amberSoft, 0.55) : FirePalette.white(0.07)

    Behavior on color { ColorAnimation { duration: plate.fade } }
    Behavior on border.color { ColorAnimation { duration: plate.fade } }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        radius: parent.radius + 3
        color: "transparent"
        border.width: 3
        border.color: Qt.alpha(FirePalette.amber, 0.16)
        opacity: plate.active ? 1 : 0

        Behavior on opacity { NumberAnimation { duration: plate.fade } }
    }
}
