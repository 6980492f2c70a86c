import QtQuick
import Pelko

/// The editor of one document: its page of blocks above the bar that adds new ones.
FocusScope {
    id: root

    required property EditorViewModel editor
    property TimersViewModel timers: null
    property TasksViewModel tasks: null
    /// Whether the page was just saved.
    property bool saved: false
    /// Why the last save failed; empty if it succeeded.
    property string saveError: ""
    property bool navigationShown: false
    property FocusFade focusFade: FocusFade {}

    signal navigationRequested

    /// In focus mode there is no other place for the focus.
    function walkOut(forward: bool) {
        if (focusFade.focused)
            page.enter(forward)
        else
            forward ? bar.enter() : leaveBackwards()
    }

    function leaveBackwards() {
        page.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        color: FirePalette.editorSurface
    }

    // Before the page in the tab order, and above it in the stacking order.
    Row {
        id: head

        anchors { horizontalCenter: page.horizontalCenter; top: parent.top; topMargin: (Metrics.stripHeight - height) / 2 }
        opacity: root.saveError === "" ? root.focusFade.chrome : 1
        spacing: Metrics.space6
        visible: opacity > 0
        z: 1

        TitleCapsule {
            backdrop: page
            maximumWidth: page.width - 2 * Metrics.titleMargin - head.spacing - navigationButton.width
            saved: root.saved
            saveError: root.saveError
            title: root.editor.title
        }

        NavigationButton {
            id: navigationButton

            active: root.navigationShown
            backdrop: page
            opacity: root.saveError === "" ? 1 : root.focusFade.chrome
            visible: opacity > 0
            onTriggered: root.navigationRequested()
        }
    }

    BlockList {
        id: page

        // The page is not mirrored; each text on it has its own direction.
        LayoutMirroring.childrenInherit: true
        LayoutMirroring.enabled: false
        anchors { fill: parent; bottomMargin: bar.height * (1 - root.focusFade.glide) }
        air: Metrics.focusAir * root.focusFade.glide
        editor: root.editor
        focus: true
        quiet: root.focusFade.focused
        onWalkedOut: forward => root.walkOut(forward)
    }

    ScrollEdgeFade {
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

    WindowDragArea {
        anchors.fill: bar
        visible: !root.focusFade.focused
    }

    BlockBar {
        id: bar

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        opacity: root.focusFade.chrome
        visible: opacity > 0
        // The focus must not stay in a hidden item.
        onVisibleChanged: if (root.Window.activeFocusItem?.visible === false) page.enter(true)
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

    Connections {
        function onSettleRequested() {
            Composition.settle(root.Window.activeFocusItem)
        }

        target: root.editor
    }

    Component.onCompleted: editor.appeared()
    Component.onDestruction: editor.release()
}
