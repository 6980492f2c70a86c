import QtQuick
import Pelko

/// The button in an image block without a picture, which opens the file chooser.
PressableControl {
    id: root

    controlRadius: Metrics.pictureRadius
    hoverDamping: 1
    implicitHeight: Metrics.emptyImageHeight
    name: qsTr("Add image")
    pressScale: 0.99

    background: Rectangle {
        color: FirePalette.addImageGround
        radius: Metrics.pictureRadius

        Rectangle {
            anchors.fill: parent
            color: FirePalette.hoverFill
            opacity: 0.5 * root.hoverAmount + 0.5 * root.pressAmount
            radius: parent.radius
        }

        DashedOutline {
            anchors.fill: parent
            color: FirePalette.addImageLine
            radius: Metrics.pictureRadius
        }
    }

    Row {
        anchors.centerIn: parent
        opacity: 0.7 + 0.3 * root.hoverAmount
        spacing: Metrics.space10

        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkMessage
            name: BlockKinds.image.icon
            size: Metrics.chipSymbol
        }

        Text {
            Accessible.ignored: true
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkMessage
            font: Typography.message
            text: root.name
        }
    }
}
