import QtQuick
import QtQuick.Templates as T

/// The ring of a control that the keyboard led to. Unlike `visualFocus` it is still shown when the window was left and
/// has come back.
FocusRing {
    id: ring

    required property T.Control control
    property bool wasReachedByKey: false

    function follow() {
        const hasReturned = control.focusReason === Qt.ActiveWindowFocusReason || control.focusReason === Qt.PopupFocusReason
        if (control.activeFocus && !hasReturned)
            wasReachedByKey = control.visualFocus
    }

    shown: control.activeFocus && wasReachedByKey

    Connections {
        function onActiveFocusChanged() { ring.follow() }
        function onVisualFocusChanged() { ring.follow() }

        target: ring.control
    }
}
