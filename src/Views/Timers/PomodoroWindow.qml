import QtQuick
import Pelko

/// The window of the pomodoro panel, as high as what it shows. Only what the panel draws is opaque: where nothing
/// composes windows its round corners stand on black.
PanelWindow {
    id: window

    required property PomodoroViewModel panel

    width: view.implicitWidth
    height: view.implicitHeight
    title: "Pelko"
    color: "transparent"

    PomodoroView {
        id: view

        anchors.fill: parent
        focus: true
        panel: window.panel
        Keys.onEscapePressed: window.dismissed()
    }
}
