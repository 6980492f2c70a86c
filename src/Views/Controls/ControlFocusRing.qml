import QtQuick
import QtQuick.Templates as T

/// The focus ring of a control that got the focus by keyboard. Unlike `visualFocus` it is shown again when the window
/// becomes active again.
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
