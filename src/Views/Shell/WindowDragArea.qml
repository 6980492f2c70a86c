import QtQuick
import QtQuick.Window

/// A background that drags the window. The system drag begins only after a small movement, so that double clicks still
/// arrive; with `maximises`, a double click maximises or restores the window. A full-screen window is not moved.
MouseArea {
    id: area

    property bool maximises: false
    property point start

    readonly property bool filled: Window.visibility === Window.Maximized
    readonly property bool movable: Window.visibility !== Window.FullScreen

    signal dragged()

    acceptedButtons: Qt.LeftButton
    onDragged: Window.window.startSystemMove()
    onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
    onPositionChanged: mouse => {
        // Qt 6.8 also reports movements without a button.
        if (pressed && movable && Math.hypot(mouse.x - start.x, mouse.y - start.y) > 4)
            dragged()
    }
    onDoubleClicked: {
        if (maximises && movable)
            Window.window.visibility = filled ? Window.Windowed : Window.Maximized
    }
}
