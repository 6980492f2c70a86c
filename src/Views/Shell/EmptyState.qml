import QtQuick
import Pelko

/// Nothing is open: a flame, a line that says so, and the button that changes it. The window is dragged by the rest.
FocusScope {
    id: root

    required property MainViewModel main

    Accessible.role: Accessible.Pane
    Accessible.name: message.text

    WindowDragArea {
        anchors.fill: parent
    }

    Column {
        anchors.centerIn: parent
        spacing: Metrics.space24

        AnimatedFlame {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 48
        }

        BalancedText {
            id: message

            anchors.horizontalCenter: parent.horizontalCenter
            widest: 320
            text: root.main.emptyMessage
            font: Typography.message
            lineHeight: Typography.messageLine
            color: FirePalette.inkMessage
        }

        WarmButton {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            name: "Start Writing"
            icon.name: "flame"
            casts: true
            onTriggered: root.main.createDocument()
        }
    }
}
