import QtQuick

/// Turns the pointer into a hand over the control it lies in. It is an item of its own, because a control with a handler
/// takes every button of the pointer for its own.
Item {
    anchors.fill: parent

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
