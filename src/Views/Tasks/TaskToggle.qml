import QtQuick
import Pelko

/// The check box of a task. It shows the state of the store; a click requests a change.
PressableControl {
    id: toggle

    required property bool done
    required property string label

    Accessible.checked: done
    Accessible.role: Accessible.CheckBox
    Accessible.onToggleAction: clicked()
    // Qt 6.4 exposes a button that is not checkable as a button, whatever its Accessible.role.
    checkable: true
    checked: done
    implicitHeight: Metrics.taskToggleSize
    implicitWidth: Metrics.taskToggleSize
    name: label === "" ? qsTr("To do...") : label
    pressScale: 0.9

    SpringFollower {
        id: tick

        dampingFraction: 0.6
        goal: toggle.done ? 1 : 0
        instant: Motion.reduced
        response: 0.3
    }

    PointingHand {}

    Item {
        anchors.centerIn: parent
        height: Metrics.taskToggleGlyph
        scale: 1 + 0.1 * tick.value
        width: Metrics.taskToggleGlyph

        SoftShadow {
            anchors.fill: parent
            blur: 2 * 4
            color: FirePalette.white(0.35)
            opacity: Math.max(0, Math.min(1, tick.value))
            radius: width / 2
            visible: opacity > 0
        }

        SymbolIcon {
            anchors.fill: parent
            color: FirePalette.white(toggle.done ? 0.85 : 0.4 + 0.25 * Math.min(1, toggle.hoverAmount))
            name: toggle.done ? "checkmark.circle.fill" : "circle"
        }
    }
}
