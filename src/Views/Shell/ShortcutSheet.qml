pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The sheet with all shortcuts in two columns. If the window is too low, the arrow keys, the page keys and the wheel
/// scroll it.
ModalLayer {
    id: sheet

    required property ShellCommands commands
    property Item backdrop: null

    readonly property alias card: card

    function scrollBy(distance: real) {
        const end = Math.max(0, lines.contentHeight - lines.height)
        lines.contentY = Math.max(0, Math.min(end, lines.contentY + distance))
    }

    Accessible.name: title.text
    Accessible.role: Accessible.Dialog
    Keys.onDownPressed: scrollBy(Metrics.sheetRow)
    Keys.onUpPressed: scrollBy(-Metrics.sheetRow)
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_PageDown) scrollBy(lines.height)
        if (event.key === Qt.Key_PageUp) scrollBy(-lines.height)
        if (event.key === Qt.Key_End) scrollBy(lines.contentHeight)
        if (event.key === Qt.Key_Home) scrollBy(-lines.contentHeight)
    }
    open: commands.showShortcuts
    scrim: FirePalette.scrim
    onClickedBeside: commands.dismissShortcuts()
    onEscaped: commands.dismissShortcuts()
    onOpened: {
        lines.contentY = 0
        close.forceActiveFocus(Qt.PopupFocusReason)
    }

    GlassSurface {
        id: card

        readonly property real head: 68
        readonly property real rise: Motion.reduced ? 0 : 8 * (1 - sheet.shown)

        backdrop: sheet.backdrop
        height: Math.min(sheet.height - 2 * Metrics.space24, head + columns.height + Metrics.space24)
        kind: Glass.dialog
        opacity: Math.max(0, Math.min(1, sheet.shown))
        radius: Metrics.overlayRadius
        width: Math.min(sheet.width - 2 * Metrics.space24, Metrics.sheetWidth)
        x: Math.round((sheet.width - width) / 2)
        y: Math.round((sheet.height - height) / 2) + rise

        MouseArea { anchors.fill: parent }

        Text {
            id: title

            Accessible.ignored: true
            anchors { left: parent.left; leftMargin: Metrics.sheetPadding; verticalCenter: close.verticalCenter }
            color: FirePalette.inkHeading
            font: Typography.sheetTitle
            text: qsTr("Keyboard Shortcuts")
        }

        RoundButton {
            id: close

            Keys.onBacktabPressed: forceActiveFocus(Qt.BacktabFocusReason)
            Keys.onTabPressed: forceActiveFocus(Qt.TabFocusReason)
            anchors { right: parent.right; rightMargin: Metrics.sheetPadding; top: parent.top; topMargin: Metrics.space24 }
            height: Metrics.captionSize
            icon.name: "xmark"
            name: qsTr("Close")
            width: height
            onTriggered: sheet.commands.dismissShortcuts()
        }

        Flickable {
            id: lines

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: parent.bottom }
            anchors { topMargin: card.head; bottomMargin: Metrics.space24 }
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height
            contentHeight: columns.height

            Row {
                id: columns

                readonly property real columnWidth: (card.width - 2 * Metrics.sheetPadding - gap.width) / 2

                x: Metrics.sheetPadding

                ShortcutColumn {
                    lines: sheet.commands.commandKeys
                    width: columns.columnWidth
                }

                Item {
                    id: gap

                    height: columns.height
                    width: 2 * Metrics.sheetPadding

                    Rectangle {
                        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; bottom: parent.bottom }
                        color: FirePalette.hairline
                        width: 1
                    }
                }

                ShortcutColumn {
                    lines: EditorShortcuts.lines
                    width: columns.columnWidth
                }
            }
        }

        PelkoScrollBar {
            anchors { right: parent.right; top: lines.top; bottom: lines.bottom }
            flickable: lines
        }
    }
}
