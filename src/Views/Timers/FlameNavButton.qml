import QtQuick
import Pelko

/// Starts five minutes of flow and shows the remaining time of a run. It is brighter and a little larger while it is
/// active or under the pointer.
PressableControl {
    id: button

    required property FlowTimer flow

    readonly property real warmth: Math.min(1, Math.max(0, Math.max(active.value, hoverAmount)))
    readonly property real timeWidth: (Metrics.chipGap + time.implicitWidth) * active.value

    name: flow.isActive ? qsTr("Flow %1").arg(flow.displayTime) : qsTr("Flow")
    onTriggered: flow.start()
    hoverResponse: 0.35
    hoverDamping: 0.7
    pressResponse: 0.2
    pressDamping: 0.5
    scale: (1 + 0.03 * warmth) * (1 - 0.05 * pressAmount)
    implicitHeight: Metrics.chipHeight
    implicitWidth: 2 * Metrics.chipPadding + flame.width + Metrics.chipGap + Math.ceil(label.implicitWidth)
                   + Math.max(0, timeWidth)

    SpringFollower {
        id: active

        goal: button.flow.isActive ? 1 : 0
        response: 0.4
        dampingFraction: 0.75
        instant: Motion.reduced
    }

    background: Item {
        SoftShadow {
            anchors.fill: parent
            visible: opacity > 0
            opacity: button.warmth
            radius: height / 2
            blur: 18
            color: Qt.alpha(FirePalette.amber, 0.28)
        }

        GlassPlate {
            anchors.fill: parent
            kind: Glass.warm
        }

        // The fill once more at half its opacity.
        Rectangle {
            anchors.fill: parent
            visible: opacity > 0
            opacity: button.warmth
            radius: height / 2
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.alpha(FirePalette.amberSoft, 0.15) }
                GradientStop { position: 1; color: Qt.alpha(FirePalette.ember, 0.15) }
            }
        }
    }

    FlameGlow {
        anchors.centerIn: flame
        visible: opacity > 0
        opacity: button.warmth
        flameSize: flame.width
        radius: 4
        color: FirePalette.amber
    }

    FlameShape {
        id: flame

        anchors { left: parent.left; leftMargin: Metrics.chipPadding; verticalCenter: parent.verticalCenter }
        width: Metrics.chipSymbol
        height: Metrics.chipSymbol
        topColor: FirePalette.smallFlameTop
        middleColor: FirePalette.smallFlameMiddle
        footColor: FirePalette.smallFlameFoot
    }

    Text {
        id: label

        anchors { left: flame.right; leftMargin: Metrics.chipGap; verticalCenter: parent.verticalCenter }
        text: qsTr("Flow")
        textFormat: Text.PlainText
        font: Typography.capsule
        color: FirePalette.white(0.9)
        Accessible.ignored: true
    }

    Item {
        anchors { left: label.right; leftMargin: Metrics.chipGap; right: parent.right; rightMargin: Metrics.chipPadding }
        height: parent.height
        clip: true
        visible: active.value > 0
        opacity: Math.min(1, active.value)

        DigitalTime {
            id: time

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            text: button.flow.displayTime
            font: Typography.capsule
            color: FirePalette.amberSoft
        }
    }
}
