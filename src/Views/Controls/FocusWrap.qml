import QtQuick

/// One end of the controls of a modal layer: who walks out of them here with Tab comes in again at the other end.
Item {
    required property Item other
    /// Stands behind the last control, and not before the first.
    required property bool isLast

    Accessible.ignored: true
    activeFocusOnTab: true
    onActiveFocusChanged: {
        if (activeFocus)
            other.nextItemInFocusChain(isLast).forceActiveFocus(isLast ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }
}
