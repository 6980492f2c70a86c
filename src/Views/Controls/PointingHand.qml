import QtQuick

/// Sets the pointing hand cursor over its parent. A separate item, because a control with a HoverHandler would accept
/// all mouse buttons.
Item {
    anchors.fill: parent

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
