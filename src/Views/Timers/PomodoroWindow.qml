import QtQuick
import Pelko

/// The window of the pomodoro panel. Its height follows its contents.
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
