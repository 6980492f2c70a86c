import QtQuick
import QtQuick.Window

/// Background by which the window is dragged. The system takes over once the pointer has moved a little with the
/// button down, so that a double click still arrives; where `maximises` is set, that fills the screen or undoes it.
MouseArea {
    id: area

    property bool maximises: false
    property point start

    readonly property bool filled: Window.visibility === Window.Maximized

    acceptedButtons: Qt.LeftButton
    onPressed: mouse => start = Qt.point(mouse.x, mouse.y)
    onPositionChanged: mouse => {
        if (Math.hypot(mouse.x - start.x, mouse.y - start.y) > 4)
            Window.window.startSystemMove()
    }
    onDoubleClicked: {
        if (maximises)
            Window.window.visibility = filled ? Window.Windowed : Window.Maximized
    }
}
