import QtQuick
import Pelko

/// The main window. It is on screen, in its colour, before anything else is made: what it holds follows its
/// first frame.
Window {
    id: window

    required property MainViewModel main
    required property LaunchSequence launch
    required property TimersViewModel timers
    required property TasksViewModel tasks
    required property ExportViewModel exports
    required property FolderChooser folderChooser

    width: 1100
    height: 750
    minimumWidth: 800
    minimumHeight: 500
    visible: true
    title: main.windowTitle
    color: FirePalette.deepBackground
    onFrameSwapped: if (!afterFirstFrame.done) afterFirstFrame.start()

    WindowAccessor {}

    // The frame that was just handed over gets its turn on the screen first.
    Timer {
        id: afterFirstFrame

        property bool done: false

        interval: 0
        onTriggered: {
            done = true
            Qt.createComponent("WindowContent.qml").createObject(window.contentItem,
                                                                 { main: window.main, launch: window.launch,
                                                                   timers: window.timers, tasks: window.tasks,
                                                                   exports: window.exports,
                                                                   folderChooser: window.folderChooser })
        }
    }
}
