pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// The resize borders of the window, and the line along its edge. A window that fills the screen has none.
Item {
    id: frame

    readonly property int grip: 6
    readonly property int corner: 12

    visible: Window.visibility === Window.Windowed

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: FirePalette.hairline
    }

    Edge {
        edges: Qt.TopEdge
        cursorShape: Qt.SizeVerCursor
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: frame.grip
    }

    Edge {
        edges: Qt.BottomEdge
        cursorShape: Qt.SizeVerCursor
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: frame.grip
    }

    Edge {
        edges: Qt.LeftEdge
        cursorShape: Qt.SizeHorCursor
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: frame.grip
    }

    Edge {
        edges: Qt.RightEdge
        cursorShape: Qt.SizeHorCursor
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: frame.grip
    }

    Corner {
        edges: Qt.TopEdge | Qt.LeftEdge
        cursorShape: Qt.SizeFDiagCursor
        anchors { left: parent.left; top: parent.top }
    }

    Corner {
        edges: Qt.TopEdge | Qt.RightEdge
        cursorShape: Qt.SizeBDiagCursor
        anchors { right: parent.right; top: parent.top }
    }

    Corner {
        edges: Qt.BottomEdge | Qt.LeftEdge
        cursorShape: Qt.SizeBDiagCursor
        anchors { left: parent.left; bottom: parent.bottom }
    }

    Corner {
        edges: Qt.BottomEdge | Qt.RightEdge
        cursorShape: Qt.SizeFDiagCursor
        anchors { right: parent.right; bottom: parent.bottom }
    }

    component Edge: MouseArea {
        required property int edges

        acceptedButtons: Qt.LeftButton
        hoverEnabled: true
        onPressed: Window.window.startSystemResize(edges)
    }

    component Corner: Edge {
        width: frame.corner
        height: frame.corner
    }
}
