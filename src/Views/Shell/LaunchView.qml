import QtQuick
import QtQuick.Window
import Pelko

/// The main view, and the launch card over it at the start. The sequence begins with the first frame on the screen, so
/// that a slow start does not shorten it.
FocusScope {
    id: root

    required property MainViewModel main
    required property LaunchSequence launch
    property TimersViewModel timers: null
    property TasksViewModel tasks: null

    Connections {
        target: root.Window.window
        enabled: !root.launch.showFlame
        function onFrameSwapped() { root.launch.start() }
    }

    MainView {
        anchors.fill: parent
        enabled: !root.launch.overlayVisible // what cannot be seen takes no keys, clicks or wheel
        focus: true
        main: root.main
        timers: root.timers
        tasks: root.tasks
    }

    Rectangle {
        id: card

        anchors.fill: parent
        color: FirePalette.deepBackground
        opacity: root.launch.overlayVisible ? 1 : 0
        visible: opacity > 0

        Behavior on opacity {
            NumberAnimation { duration: Motion.reduced ? Motion.fade : 450; easing.type: Easing.OutQuad }
        }

        WindowDragArea {
            anchors.fill: parent
            hoverEnabled: true
        }

        Column {
            anchors.centerIn: parent
            spacing: Metrics.space14

            AnimatedFlame {
                anchors.horizontalCenter: parent.horizontalCenter
                size: 56
                opacity: root.launch.showFlame ? 1 : 0

                Behavior on opacity {
                    NumberAnimation {
                        duration: Motion.reduced ? Motion.fade : PelkoAnimation.settle.duration
                        easing: PelkoAnimation.settle.curve
                    }
                }
            }

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                implicitWidth: productName.implicitWidth
                implicitHeight: productName.implicitHeight
                opacity: root.launch.showTitle ? 1 : 0

                Behavior on opacity {
                    SequentialAnimation {
                        PauseAnimation { duration: 350 }
                        NumberAnimation { duration: Motion.reduced ? Motion.fade : 300; easing.type: Easing.OutQuad }
                    }
                }

                Text {
                    id: productName

                    text: "Pelko"
                    font: Typography.sheetTitle
                    color: FirePalette.ink
                    opacity: 0.6
                }
            }
        }
    }
}
