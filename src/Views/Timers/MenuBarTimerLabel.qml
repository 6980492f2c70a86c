import QtQuick
import QtQuick.Window
import Pelko

/// The flame and, while the pomodoro runs, the remaining time with a pulse. It opens the pomodoro panel. It is shown in
/// the window if the desktop has no tray.
PressableControl {
    id: label

    required property TimersViewModel timers

    /// Alternates while the timer runs; the pulse is animated between its two values.
    property bool pulse: false
    property real flameOpacity: 0.8

    name: timers.labelName
    implicitHeight: Metrics.capsuleHeight
    implicitWidth: row.implicitWidth + 2 * Metrics.space10
    onTriggered: {
        const corner = mapToGlobal(0, 0)
        timers.togglePanel(Qt.rect(corner.x, corner.y, width, height))
    }

    Accessible.role: Accessible.ButtonMenu

    background: GlassSurface {
        kind: Glass.capsule
        lift: 0.05 * label.hoverAmount + 0.04 * label.pressAmount + (label.timers.isPanelOpen ? 0.05 : 0)
    }

    Connections {
        target: label.timers
        function onIsRunningChanged() { label.pulse = label.timers.isRunning }
    }

    SequentialAnimation {
        running: label.pulse && label.visible && !Motion.reduced && label.Window.visibility !== Window.Hidden
                 && label.Window.visibility !== Window.Minimized
        loops: Animation.Infinite
        onStopped: label.flameOpacity = Qt.binding(() => label.timers.isRunning ? 1 : 0.8)

        NumberAnimation { target: label; property: "flameOpacity"; from: 0.5; to: 1; duration: 1000; easing.type: Easing.InOutQuad }
        NumberAnimation { target: label; property: "flameOpacity"; from: 1; to: 0.5; duration: 1000; easing.type: Easing.InOutQuad }
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Metrics.space6

        FlameShape {
            anchors.verticalCenter: parent.verticalCenter
            width: Metrics.labelFlame
            height: Metrics.labelFlame
            opacity: label.flameOpacity
            topColor: FirePalette.smallFlameTop
            middleColor: FirePalette.smallFlameMiddle
            footColor: FirePalette.smallFlameFoot
        }

        DigitalTime {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: label.timers.labelText
            font: Typography.capsule
            color: Qt.alpha(FirePalette.ink, 0.92)
        }
    }
}
