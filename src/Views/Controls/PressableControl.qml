import QtQuick
import QtQuick.Templates as T
import Pelko

/// The base of all buttons: they are reached with Tab, but a click does not take the focus; Space and Return trigger
/// them; they shrink while pressed. `name` is the accessible name.
T.AbstractButton {
    id: control

    required property string name
    property real controlRadius: height / 2
    property real pressScale: 0.95
    property alias pressResponse: press.response
    property alias pressDamping: press.dampingFraction
    readonly property alias hoverAmount: hover.value
    property alias hoverResponse: hover.response
    property alias hoverDamping: hover.dampingFraction
    readonly property real pressAmount: press.value
    readonly property bool pointedAt: hovered || ring.shown

    signal triggered()

    text: name
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.3
    scale: 1 - (1 - pressScale) * press.value
    onClicked: control.triggered()
    Keys.onReturnPressed: control.clicked()
    Keys.onEnterPressed: control.clicked()

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: control.clicked()

    SpringFollower {
        id: hover

        goal: control.pointedAt ? 1 : 0
        response: 0.32
        dampingFraction: 1
        instant: Motion.reduced
    }

    SpringFollower {
        id: press

        goal: control.down ? 1 : 0
        response: 0.18
        dampingFraction: 0.55
        instant: Motion.reduced
    }

    ControlFocusRing {
        id: ring

        control: control
        controlRadius: control.controlRadius
    }
}
