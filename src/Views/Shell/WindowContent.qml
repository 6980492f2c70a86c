pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The contents of the main window: the launch card and the main view, the alerts, the resize borders, and the
/// shortcuts or the menu bar.
FocusScope {
    id: root

    required property MainViewModel main
    required property LaunchSequence launch
    property TimersViewModel timers: null
    property TasksViewModel tasks: null
    required property ExportViewModel exports
    required property FolderChooser folderChooser
    readonly property bool tellsOfUnsaved: main.showError || main.quitGuard.asks

    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    anchors.fill: parent
    focus: true
    // Created only on platforms with a menu bar, because it loads another module.
    Component.onCompleted: {
        if (main.commands.hasMenuBar)
            Qt.createComponent("NativeMenuBar.qml").createObject(root, { commands: main.commands })
    }

    LaunchView {
        id: launchView

        anchors.fill: parent
        focus: true
        main: root.main
        launch: root.launch
        timers: root.timers
        tasks: root.tasks
    }

    FolderChooserDialog {
        anchors.fill: parent
        chooser: root.folderChooser
        backdrop: launchView
    }

    Alerts {
        anchors.fill: parent
        main: root.main
        backdrop: launchView
        covered: root.tellsOfUnsaved
    }

    ExportAlerts {
        anchors.fill: parent
        exports: root.exports
        backdrop: launchView
        covered: root.tellsOfUnsaved
    }

    ShortcutSheet {
        anchors.fill: parent
        backdrop: launchView
        commands: root.main.commands
    }

    UnsavedAlerts {
        anchors.fill: parent
        main: root.main
        backdrop: launchView
    }

    WindowEdges {
        anchors.fill: parent
    }

    CommandKeys {
        commands: root.main.commands
    }
}
