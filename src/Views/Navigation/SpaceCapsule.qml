import QtQuick
import Pelko

/// The name of the space of a search result.
Rectangle {
    required property string space

    color: FirePalette.white(0.08)
    implicitHeight: Metrics.spaceCapsuleHeight
    implicitWidth: label.implicitWidth + 2 * Metrics.space10
    radius: height / 2

    Text {
        id: label

        Accessible.ignored: true
        anchors.centerIn: parent
        color: Qt.alpha(FirePalette.ink, 0.72)
        font: Typography.capsule
        renderType: Text.NativeRendering
        text: parent.space
        textFormat: Text.PlainText
    }
}
