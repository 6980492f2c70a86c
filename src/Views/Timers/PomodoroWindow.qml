import QtQuick
import Pelko

/// The window of the pomodoro panel. Its height follows its contents.
PanelWindow {
    id: window

    required property PomodoroViewModel panel
    /// The shortcut that opens the panel, which also closes it.
    required property string shortcut

    width: view.implicitWidth
    height: view.implicitHeight
    title: "Pelko"
    color: "transparent"
    cornerRadius: Metrics.cardRadius

    Shortcut {
        sequence: window.shortcut
        onActivated: window.dismissed()
    }

    PomodoroView {
        id: view

        anchors.fill: parent
        focus: true
        panel: window.panel
        Keys.onEscapePressed: window.dismissed()
    }
}
