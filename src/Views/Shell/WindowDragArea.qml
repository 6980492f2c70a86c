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

    signal dragged()

    acceptedButtons: Qt.LeftButton
    onDragged: Window.window.startSystemMove()
    onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
    onPositionChanged: mouse => {
        // Qt 6.8 also reports the pointer that only passes over.
        if (pressed && movable && Math.hypot(mouse.x - start.x, mouse.y - start.y) > 4)
            dragged()
    }
    onDoubleClicked: {
        if (maximises && movable)
            Window.window.visibility = filled ? Window.Windowed : Window.Maximized
    }
}
