pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A layer over its whole parent while `open`. It takes the focus and returns it to the previous item. Clicks, keys
/// and, unless `passesShortcuts` is set, shortcuts do not reach the items below. Escape and a click beside the content
/// are reported; the owner closes the layer. `shown` is animated from 0 to 1 and back.
///
/// A layer that opens `unasked` may appear while the user types: it takes the focus only after a second without a key,
/// and returns it when the user goes on typing.
FocusScope {
    id: layer

    property bool open: false
    property springMotion motion: PelkoAnimation.settle
    property color scrim: "transparent"
    property bool passesShortcuts: false
    property bool unasked: false
    /// Whether another layer is above this one and has the focus.
    property bool covered: false
    readonly property alias shown: progress.value

    property bool complete: false
    // A layer that is open from the start has no item to return the focus to.
    readonly property bool active: open && complete
    property Item returnFocusTo: null

    signal opened()
    signal escaped()
    signal clickedBeside()

    function start() : void {
        returnFocusTo = Window.activeFocusItem
        enabled = true
        if (!unasked)
            takeFocus()
    }

    function takeFocus() : void {
        if (!activeFocus)
            returnFocusTo = Window.activeFocusItem
        forceActiveFocus(Qt.PopupFocusReason)
        opened()
    }

    function returnFocus() : void {
        if (returnFocusTo && activeFocus)
            returnFocusTo.forceActiveFocus(Qt.PopupFocusReason)
    }

    function end() : void {
        returnFocus()
        enabled = false
    }

    anchors.fill: parent
    visible: open || shown > 0
    enabled: false
    onActiveChanged: active ? start() : end()
    Component.onCompleted: complete = true
    Keys.onEscapePressed: escaped()
    Keys.onShortcutOverride: event => event.accepted = !layer.passesShortcuts
    Keys.onPressed: event => event.accepted = true

    QtObject {
        id: progress

        property real value: layer.open ? 1 : 0

        Behavior on value {
            NumberAnimation {
                // Closing takes half the time of opening.
                duration: Motion.reduced ? Motion.fade : layer.motion.duration / (layer.open ? 1 : 2)
                easing: layer.motion.curve
            }
        }
    }

    KeyWatcher {
        active: layer.active && layer.unasked
        onPressed: writes => {
            if (!layer.covered)
                pause.restart()
            if (writes)
                layer.returnFocus()
        }
    }

    Timer {
        id: pause

        interval: 1000
        running: layer.active && layer.unasked && !layer.covered
        onTriggered: layer.takeFocus()
    }

    Rectangle {
        anchors.fill: parent
        color: layer.scrim
        opacity: Math.min(1, layer.shown)
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        preventStealing: true
        onWheel: wheel => wheel.accepted = true
        onClicked: layer.clickedBeside()
    }
}
