pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The main window: the launch card over the main view, in a frame of its own.
Window {
    id: window

    required property MainViewModel main
    required property LaunchSequence launch

    width: 1100
    height: 750
    minimumWidth: 800
    minimumHeight: 500
    visible: true
    title: main.windowTitle
    color: FirePalette.deepBackground

    WindowAccessor {}

    LaunchView {
        id: launchView

        anchors.fill: parent
        focus: true
        main: window.main
        launch: window.launch
    }

    Alerts {
        anchors.fill: parent
        main: window.main
        backdrop: launchView
    }

    WindowEdges {
        anchors.fill: parent
    }

    Instantiator {
        model: window.main.menuCommands
        delegate: Shortcut {
            required property var modelData

            sequences: modelData.shortcut === "" ? [] : [modelData.shortcut]
            context: Qt.WindowShortcut
            onActivated: window.main.run(modelData.id)
        }
    }
}
