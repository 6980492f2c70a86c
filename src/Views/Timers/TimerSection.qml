pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// The ring with its flame, the time, the phase, a dot for each completed session, and the two buttons.
Column {
    id: root

    required property PomodoroViewModel panel

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Metrics.ringSize
        height: Metrics.ringSize

        ProgressRing {
            anchors.fill: parent
            anchors.margins: -margin
            margin: Metrics.space12
            trackColor: FirePalette.white(0.06)
            tailColor: FirePalette.ember
            headColor: FirePalette.amberSoft
            progress: root.panel.progress

            Behavior on progress {
                enabled: !Motion.reduced && root.Window.visibility !== Window.Hidden
                NumberAnimation { duration: 1000 }
            }
        }

        FlameGlow {
            anchors.centerIn: parent
            flameSize: 28
            radius: 12
            color: FirePalette.amber
            opacity: root.panel.isRunning ? 0.45 : 0

            Behavior on opacity {
                NumberAnimation { duration: Motion.reduced ? Motion.fade : PelkoAnimation.smooth.duration }
            }
        }

        FlameShape {
            anchors.centerIn: parent
            width: 28
            height: 28
            topColor: FirePalette.flameTop
            middleColor: FirePalette.amber
            footColor: FirePalette.ember
        }
    }

    Item { width: 1; height: Metrics.space10 }

    DigitalTime {
        anchors.horizontalCenter: parent.horizontalCenter
        height: Typography.pomodoroTimeLine
        text: root.panel.displayTime
        font: Typography.pomodoroTime
        color: FirePalette.white(0.92)
        rolls: true
        colonInset: 10
        colonRise: 3

        Accessible.role: Accessible.StaticText
        Accessible.name: root.panel.displayTime
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        // Equal to the letter spacing behind the last letter, so that the letters are centred.
        leftPadding: 2
        height: 16
        verticalAlignment: Text.AlignVCenter
        text: root.panel.phase
        textFormat: Text.PlainText
        font: Typography.phaseLabel
        color: Qt.alpha(FirePalette.amber, 0.7)
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    // Keeps its height while it is empty.
    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.max(1, dots.width)
        height: 26

        SessionDots {
            id: dots

            height: parent.height
            count: root.panel.sessionDots
            more: root.panel.moreSessions
            total: root.panel.sessionCount
        }
    }

    Item { width: 1; height: 3 }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Metrics.space12

        RoundButton {
            name: root.panel.isRunning ? qsTr("Pause") : qsTr("Start")
            icon.name: root.panel.isRunning ? "pause.fill" : "play.fill"
            onTriggered: root.panel.toggleTimer()
        }

        RoundButton {
            name: qsTr("Reset")
            icon.name: "arrow.counterclockwise"
            onTriggered: root.panel.resetTimer()
        }
    }
}
