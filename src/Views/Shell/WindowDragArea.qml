import QtQuick
import QtQuick.Window

/// Background by which the window is dragged. The system takes over once the pointer has moved a little with the
/// button down, so that a double click still arrives; where `maximises` is set, that fills the screen or undoes it. A
/// window in full screen stays where it is.
MouseArea {
    id: area

    property bool maximises: false
    property point start

    readonly property bool filled: Window.visibility === Window.Maximized
    readonly property bool movable: Window.visibility !== Window.FullScreen

    acceptedButtons: Qt.LeftButton
    onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
    onPositionChanged: mouse => {
        if (movable && Math.hypot(mouse.x - start.x, mouse.y - start.y) > 4)
            Window.window.startSystemMove()
    }
    onDoubleClicked: {
        if (maximises && movable)
            Window.window.visibility = filled ? Window.Windowed : Window.Maximized
    }
}
