pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// Lies over its whole parent while `open`. Takes the keyboard and gives it back to the item that had it; lets
/// neither clicks nor keys nor, unless it `passesShortcuts`, shortcuts through to what lies below. Tells of Escape and
/// of a click beside the content; closing is up to whoever opened it. `shown` runs from 0 to 1 and back.
///
/// One that opens `unasked` may come up in the middle of a word: it leaves the keyboard where it is until no key has
/// been pressed for a second, and gives it back when somebody goes on writing, be it with a space.
FocusScope {
    id: layer

    property bool open: false
    property var motion: PelkoAnimation.settle
    property color scrim: "transparent"
    property bool passesShortcuts: false
    property bool unasked: false
    /// Another layer lies over this one and has the keyboard.
    property bool covered: false
    readonly property alias shown: progress.value

    property bool complete: false
    // One that is open from the start has nothing yet to give the keyboard to.
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
