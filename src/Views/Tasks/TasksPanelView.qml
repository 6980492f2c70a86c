import QtQuick
import QtQuick.Window
import Pelko

/// The column of cards beside the editor. It scrolls where the window is too low for it.
FocusScope {
    id: root

    required property TasksPanelViewModel panel

    readonly property Item focused: Window.activeFocusItem
    // It is made before it is in a window, to be seen at once.
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

        // Painted anew for every so many pixels only while the window is resized.
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

    // The line that divides it from the editor.
    Rectangle {
        anchors.left: parent.left
        color: FirePalette.white(0.08)
        height: parent.height
        width: 0.5
    }
}
