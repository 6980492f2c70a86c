import QtQuick
import QtQuick.Window
import Pelko

/// The column of cards beside the editor. It scrolls if the window is too low.
FocusScope {
    id: root

    required property TasksPanelViewModel panel

    readonly property Item focused: Window.activeFocusItem
    // True until it is in a window, because it is created shortly before it is shown.
    readonly property bool isSeen: !Window.window || (visible && Window.visibility !== Window.Hidden
                                                      && Window.visibility !== Window.Minimized)

    /// Scrolls the focused item into view.
    function reveal() {
        const place = cards.mapFromItem(focused, 0, 0, focused.width, focused.height)
        const above = Math.min(place.y - Metrics.panelPadding - scroll.contentY, 0)
        const below = Math.max(place.y + place.height + Metrics.panelPadding - scroll.contentY - scroll.height, 0)
        scroll.contentY = Math.max(0, scroll.contentY + (above || below))
    }

    Accessible.name: qsTr("Tasks panel")
    Accessible.role: Accessible.Pane
    implicitWidth: Metrics.panelWidth
    onFocusedChanged: if (activeFocus) reveal()
    onIsSeenChanged: panel.setSeen(isSeen)

    Item {
        id: ground

        anchors.fill: parent
        clip: true

        // While the window is resized, it is repainted in steps of some pixels.
        SidebarBG {
            readonly property int step: 128

            anchors { bottom: parent.bottom; left: parent.left; right: parent.right }
            height: step * Math.ceil(parent.height / step)
        }
    }

    WindowDragArea {
        anchors.fill: parent
    }

    Flickable {
        id: scroll

        anchors { fill: parent; topMargin: Metrics.stripHeight }
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        contentHeight: cards.height + Metrics.panelPadding
        interactive: contentHeight > height

        Column {
            id: cards

            spacing: Metrics.panelPadding
            width: parent.width - 2 * Metrics.panelPadding
            x: Metrics.panelPadding

            DocumentPill {
                anchors.left: parent.left
                backdrop: ground
                text: root.panel.openDocumentText
                visible: root.panel.hasOpenDocument
            }

            ClockCard {
                backdrop: ground
                panel: root.panel
                width: parent.width
            }

            TasksCard {
                backdrop: ground
                panel: root.panel
                width: parent.width
            }

            WordGoalCard {
                backdrop: ground
                panel: root.panel
                width: parent.width
            }

            StreakCard {
                backdrop: ground
                inSight: y + height > scroll.contentY && y < scroll.contentY + scroll.height
                panel: root.panel
                width: parent.width
            }

            CalendarCard {
                backdrop: ground
                panel: root.panel
                width: parent.width
            }
        }
    }

    PelkoScrollBar {
        anchors { bottom: scroll.bottom; right: parent.right; top: scroll.top }
        flickable: scroll
    }

    // The line between panel and editor.
    Rectangle {
        anchors.left: parent.left
        color: FirePalette.white(0.08)
        height: parent.height
        width: 0.5
    }
}
