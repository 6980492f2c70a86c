import QtQuick
import Pelko

/// A key and the description of its action.
Row {
    id: root

    required property string key
    required property string does

    spacing: Metrics.space8

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        border.color: FirePalette.white(0.10)
        color: FirePalette.white(0.07)
        implicitHeight: cap.implicitHeight + Metrics.space4
        implicitWidth: cap.implicitWidth + Metrics.space10
        radius: 5

        Text {
            id: cap

            Accessible.ignored: true
            anchors.centerIn: parent
            color: Qt.alpha(FirePalette.ink, 0.80)
            font: Typography.menuKey
            renderType: Text.NativeRendering
            text: root.key
        }
    }

    Text {
        Accessible.ignored: true
        anchors.verticalCenter: parent.verticalCenter
        color: FirePalette.inkMeta
        font: Typography.meta
        renderType: Text.NativeRendering
        text: root.does
    }
}
