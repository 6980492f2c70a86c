import QtQuick
import Pelko

/// The main window. It is shown with its background colour before its contents are created, which happens after its
/// first frame.
Window {
    id: window

    required property MainViewModel main
    required property LaunchSequence launch
    required property TimersViewModel timers
    required property TasksViewModel tasks
    required property ExportViewModel exports
    required property FolderChooser folderChooser

    function fill(content: Component) {
        content.createObject(contentItem, { main: main, launch: launch, timers: timers, tasks: tasks,
                                            exports: exports, folderChooser: folderChooser })
    }

    width: 1100
    height: 750
    minimumWidth: 800
    minimumHeight: 500
    visible: true
    title: main.windowTitle
    color: FirePalette.deepBackground
    onFrameSwapped: if (!afterFirstFrame.done) afterFirstFrame.start()

    WindowAccessor {}

    // The frame must reach the screen first.
    Timer {
        id: afterFirstFrame

        property bool done: false

        interval: 0
        onTriggered: {
            done = true
            const content = Qt.createComponent("WindowContent.qml")
            content.status === Component.Error ? window.launch.fail(content.errorString()) : window.fill(content)
        }
    }
}
