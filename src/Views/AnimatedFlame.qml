pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// A flame that flickers and glows. Each of the three states alternates for ever between two values; their periods
/// differ, so that the flame never repeats visibly. It moves only while it is visible.
Item {
    id: flame

    required property real size
    property bool flickerA: false
    property bool flickerB: false
    property bool glowBreathing: false

    readonly property bool seen: visible && Window.visibility !== Window.Hidden
                                 && Window.visibility !== Window.Minimized
    readonly property bool small: size <= 14
    readonly property real widthScale: across.value
    readonly property real heightScale: upward.value
    readonly property real glowOpacity: 0.25 + 0.35 * glow.value
    readonly property real glowRadius: 10 + 10 * glow.value

    readonly property real largestGlow: 20

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true
    Component.onCompleted: flickerA = flickerB = glowBreathing = Qt.binding(() => !Motion.reduced)

    FlameGlow {
        anchors.centerIn: parent
        flameSize: flame.size
        radius: flame.largestGlow
        color: FirePalette.amber
        opacity: flame.glowOpacity
        // One blurred picture serves every radius: it is scaled to extend equally far beyond the flame.
        scale: (flame.size / 2 + flame.glowRadius) / (flame.size / 2 + flame.largestGlow)
    }

    FlameShape {
        anchors.fill: parent
        topColor: flame.small ? FirePalette.smallFlameTop : FirePalette.flameTop
        middleColor: flame.small ? FirePalette.smallFlameMiddle : FirePalette.amber
        footColor: flame.small ? FirePalette.smallFlameFoot : FirePalette.ember
        transform: Scale {
            origin.x: flame.width / 2
            origin.y: flame.height / 2
            xScale: flame.widthScale
            yScale: flame.heightScale
        }
    }

    Swing { id: across; low: 0.97; high: 1.03; period: 1200; on: flame.flickerA }
    Swing { id: upward; low: 0.95; high: 1.05; period: 900; on: flame.flickerB }
    Swing { id: glow; low: 0; high: 1; period: 2000; on: flame.glowBreathing }

    component Swing: QtObject {
        id: swing

        required property real low
        required property real high
        required property int period
        required property bool on
        property real position: low
        readonly property real value: on ? position : low

        readonly property SequentialAnimation motion: SequentialAnimation {
            running: swing.on
            paused: running && !flame.seen
            loops: Animation.Infinite

            NumberAnimation {
                target: swing
                property: "position"
                from: swing.low
                to: swing.high
                duration: swing.period
                easing.type: Easing.InOutSine
            }
            NumberAnimation {
                target: swing
                property: "position"
                from: swing.high
                to: swing.low
                duration: swing.period
                easing.type: Easing.InOutSine
            }
        }
    }
}
