import QtQuick
import Pelko

/// The editor of one document: its page of blocks above the bar that adds new ones.
FocusScope {
    id: root

    required property EditorViewModel editor
    property TimersViewModel timers: null
    property TasksViewModel tasks: null

    function leaveBackwards() {
        page.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        color: FirePalette.editorSurface
    }

    BlockList {
        id: page

        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: bar.top }
        editor: root.editor
        focus: true
        onWalkedOut: forward => forward ? bar.enter() : root.leaveBackwards()
    }

    PageVeil {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        opacity: root.editor.firstBlockIsBanner && page.atTop ? 0 : 1

        Behavior on opacity {
            NumberAnimation { duration: Motion.fade }
        }
    }

    WindowDragArea {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: Metrics.stripHeight
        maximises: true
    }

    TitleCapsule {
        anchors { horizontalCenter: page.horizontalCenter; top: parent.top; topMargin: (Metrics.stripHeight - height) / 2 }
        maximumWidth: page.width - 2 * Metrics.titleMargin
        title: root.editor.title
        backdrop: page
    }

    WindowDragArea {
        anchors.fill: bar
    }

    BlockBar {
        id: bar

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        onAddRequested: kind => root.editor.addBlock(kind)
        onWalkedBack: page.enter(false)

        Repeater {
            model: root.tasks?.isOffered ? [root.tasks] : []

            TasksPanelToggleButton {
                required property TasksViewModel modelData

                tasks: modelData
            }
        }

        Repeater {
            model: root.timers ? [root.timers.flow] : []

            FlameNavButton {
                required property FlowTimer modelData

                flow: modelData
            }
        }
    }

    // While another editor takes its place, the one that goes has no say.
    Shortcut {
        enabled: root.focus
        sequences: ["Ctrl+Z"]
        onActivated: root.editor.undo()
    }

    Shortcut {
        enabled: root.focus
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        onActivated: root.editor.redo()
    }

    Connections {
        function onSettleRequested() {
            (root.Window.activeFocusItem as WritingField)?.settle()
        }

        target: root.editor
    }

    Component.onCompleted: editor.appeared()
    Component.onDestruction: editor.release()
}
