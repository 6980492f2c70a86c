import QtQuick

/// A focus stop at one end of a modal layer's tab chain. It moves the focus to the other end.
Item {
    required property Item other
    /// Whether it is behind the last control, and not before the first.
    required property bool isLast

    Accessible.ignored: true
    activeFocusOnTab: true
    onActiveFocusChanged: {
        if (activeFocus)
            other.nextItemInFocusChain(isLast).forceActiveFocus(isLast ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }
}
