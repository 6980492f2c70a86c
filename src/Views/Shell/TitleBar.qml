pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// The window frame: the menu button at the left, unless the system has a menu bar, and the caption buttons at the
/// right. It lies over the content and passes clicks between them on. In focus mode it is hidden until the pointer is
/// over it. On a Mac the system has its own.
Item {
    id: strip

    property bool menuOpen: false
    property bool offersMenu: true
    /// Whether an overlay is open: a click closes it instead of reaching menu and timer.
    property bool covered: false
    property TimersViewModel timers: null
    property FocusFade focusFade: FocusFade {}
    readonly property alias menuButton: menuButton
    readonly property bool fullScreen: Window.visibility === Window.FullScreen
    readonly property bool filled: fullScreen || Window.visibility === Window.Maximized

    signal menuRequested()
    signal fullScreenLeft()
    signal clickedWhileCovered()

    function changeSize() {
        if (fullScreen)
            fullScreenLeft()
        else
            filled ? Window.window.showNormal() : Window.window.showMaximized()
    }

    /// Returns the place of the pomodoro panel on the screen.
    function timerPlace() : rect {
        const label = timerLabels.itemAt(0) as Item
        const opener = label?.visible ? label : menuButton
        const corner = opener.mapToGlobal(0, 0)
        return Qt.rect(corner.x, corner.y, opener.width, opener.height)
    }

    implicitHeight: Metrics.stripHeight
    visible: Qt.platform.os !== "osx"

    HoverHandler {
        id: hover
    }

    // In focus mode the buttons appear under the pointer.
    Item {
        id: buttons

        property real shown: hover.hovered || strip.menuOpen ? 1 : 0
        readonly property real seen: Math.max(shown, strip.focusFade.chrome)

        anchors.fill: parent

        Behavior on shown {
            NumberAnimation { duration: Motion.fade }
        }

        CaptionButton {
            id: menuButton

            anchors { left: parent.left; leftMargin: Metrics.captionEdge }
            y: Metrics.captionTop
            name: qsTr("Menu")
            icon.name: "line.3.horizontal"
            active: strip.menuOpen
            opacity: buttons.seen
            visible: strip.offersMenu && opacity > 0
            onTriggered: strip.menuRequested()
            Accessible.role: Accessible.ButtonMenu
        }

        // Only without a tray. A running timer stays visible in focus mode.
        Repeater {
            id: timerLabels

            model: strip.timers ? [strip.timers] : []

            MenuBarTimerLabel {
                required property TimersViewModel modelData

                anchors { left: menuButton.right; leftMargin: Metrics.space8; verticalCenter: menuButton.verticalCenter }
                opacity: Math.max(buttons.seen, modelData.isRunning ? Metrics.quietTimer : 0)
                timers: modelData
                visible: !modelData.isInTray && opacity > 0
            }
        }

        Row {
            id: captions

            opacity: buttons.seen
            visible: opacity > 0
            anchors { right: parent.right; rightMargin: Metrics.captionEdge }
            y: Metrics.captionTop
            spacing: Metrics.captionSpacing

            CaptionButton {
                name: qsTr("Minimise")
                icon.name: "window.minimise"
                onTriggered: strip.Window.window.showMinimized()
            }

            CaptionButton {
                name: strip.filled ? qsTr("Restore") : qsTr("Maximise")
                icon.name: strip.filled ? "window.restore" : "window.maximise"
                onTriggered: strip.changeSize()
            }

            CaptionButton {
                name: qsTr("Close")
                icon.name: "window.close"
                closes: true
                onTriggered: strip.Window.window.close()
            }
        }
    }

    MouseArea {
        acceptedButtons: Qt.AllButtons
        anchors { left: parent.left; right: parent.right; rightMargin: captions.width + 2 * Metrics.captionEdge }
        height: parent.height
        visible: strip.covered
        onClicked: strip.clickedWhileCovered()
    }
}
