import QtQuick
import Pelko

/// The view without an open document: a flame, a text and a button to create one. Its background drags the window.
FocusScope {
    id: root

    required property MainViewModel main

    readonly property int glowRise: 40

    Accessible.role: Accessible.Pane
    Accessible.name: message.text

    WindowDragArea {
        anchors.fill: parent
    }

    WindowDragArea {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: Metrics.stripHeight
        maximises: true
    }

    NavigationButton {
        active: root.main.appState.showNav
        anchors.horizontalCenter: parent.horizontalCenter
        y: (Metrics.stripHeight - height) / 2
        onTriggered: root.main.toggleNav()
    }

    // The faint light of the flame. A small blurred picture, enlarged, is soft enough.
    FlameGlow {
        anchors { centerIn: column; verticalCenterOffset: -root.glowRise }
        flameSize: 20
        radius: 40
        scale: 6
        color: FirePalette.ember
        opacity: 0.8
    }

    Column {
        id: column

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
            name: qsTr("Start Writing")
            icon.name: "flame"
            casts: true
            onTriggered: root.main.createDocument()
        }
    }
}
