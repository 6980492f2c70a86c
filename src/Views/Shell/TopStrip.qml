pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// The window's own frame: the menu button at the left unless the system has a menu bar, the caption buttons at the
/// right. It floats over the content and takes no clicks between them. In focus mode it is not seen before it is
/// pointed at. On a Mac the system brings its own.
Item {
    id: strip

    property bool menuOpen: false
    property bool offersMenu: true
    property TimersViewModel timers: null
    property FocusFade focusFade: FocusFade {}
    readonly property alias menuButton: menuButton
    readonly property bool fullScreen: Window.visibility === Window.FullScreen
    readonly property bool filled: fullScreen || Window.visibility === Window.Maximized

    signal menuRequested()
    signal fullScreenLeft()

    function changeSize() {
        if (fullScreen)
            fullScreenLeft()
        else
            filled ? Window.window.showNormal() : Window.window.showMaximized()
    }

    /// Where on the screen the pomodoro panel belongs.
    function timerPlace() : rect {
        const opener = (timerLabels.itemAt(0) ?? menuButton) as Item
        const corner = opener.mapToGlobal(0, 0)
        return Qt.rect(corner.x, corner.y, opener.width, opener.height)
    }

    implicitHeight: Metrics.stripHeight
    visible: Qt.platform.os !== "osx"

    HoverHandler {
        id: hover
    }

    // In focus mode the buttons come back under the pointer.
    Item {
        id: buttons

        property real shown: hover.hovered || strip.menuOpen ? 1 : 0

        anchors.fill: parent
        opacity: Math.max(shown, strip.focusFade.chrome)
        visible: opacity > 0

        Behavior on shown {
            NumberAnimation { duration: Motion.fade }
        }

        CaptionButton {
            id: menuButton

            x: Metrics.captionEdge
            y: Metrics.captionTop
            name: "Menu"
            icon.name: "line.3.horizontal"
            active: strip.menuOpen
            visible: strip.offersMenu
            onTriggered: strip.menuRequested()
            Accessible.role: Accessible.ButtonMenu
        }

        // A tray shows it where there is one.
        Repeater {
            id: timerLabels

            model: strip.timers && !strip.timers.isInTray ? [strip.timers] : []

            MenuBarTimerLabel {
                required property TimersViewModel modelData

                anchors { left: menuButton.right; leftMargin: Metrics.space8; verticalCenter: menuButton.verticalCenter }
                timers: modelData
            }
        }

        Row {
            anchors { right: parent.right; rightMargin: Metrics.captionEdge }
            y: Metrics.captionTop
            spacing: Metrics.captionSpacing

            CaptionButton {
                name: "Minimise"
                icon.name: "window.minimise"
                onTriggered: strip.Window.window.showMinimized()
            }

            CaptionButton {
                name: strip.filled ? "Restore" : "Maximise"
                icon.name: strip.filled ? "window.restore" : "window.maximise"
                onTriggered: strip.changeSize()
            }

            CaptionButton {
                name: "Close"
                icon.name: "window.close"
                closes: true
                onTriggered: strip.Window.window.close()
            }
        }
    }
}
