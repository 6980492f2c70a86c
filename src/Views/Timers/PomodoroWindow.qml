import QtQuick
import Pelko

/// The window of the pomodoro panel, as high as what it shows.
PanelWindow {
    id: window

    required property PomodoroViewModel panel

    width: view.implicitWidth
    height: view.implicitHeight
    title: "Pelko"
    color: "transparent"
    cornerRadius: Metrics.cardRadius

    PomodoroView {
        id: view

        anchors.fill: parent
        focus: true
        panel: window.panel
        Keys.onEscapePressed: window.dismissed()
    }
}
