import QtQuick
import Pelko

/// A progress bar. Changes of its length are animated.
Rectangle {
    id: bar

    required property real progress

    readonly property real part: Math.max(0, Math.min(1, length.value))

    color: FirePalette.white(0.08)
    implicitHeight: Metrics.goalBarHeight
    radius: height / 2

    SpringFollower {
        id: length

        dampingFraction: 0.8
        goal: bar.progress
        instant: Motion.reduced
        response: 0.6
    }

    SoftShadow {
        anchors.fill: fill
        blur: 2 * 4
        color: Qt.alpha(FirePalette.amber, 0.5)
        radius: fill.radius
        visible: fill.width > 0
    }

    Rectangle {
        id: fill

        anchors.left: parent.left
        height: parent.height
        radius: height / 2
        visible: width > 0
        width: parent.width * bar.part
        gradient: Gradient {
            orientation: Gradient.Horizontal

            GradientStop { position: 0; color: FirePalette.ember }
            GradientStop { position: 1; color: FirePalette.amber }
        }
    }
}
