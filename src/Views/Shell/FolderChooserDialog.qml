pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The program's own file chooser: the user's standard folders at the left, the shown folder with its pictures at the
/// right, or only with its folders if a folder is wanted. Arrow keys and letters select, Return opens, Backspace goes
/// up, Ctrl+L edits the path.
ModalLayer {
    id: dialog

    required property FolderChooser chooser
    property Item backdrop: null

    Accessible.name: title.text
    Accessible.role: Accessible.Dialog
    Keys.onPressed: event => {
        event.accepted = true
        if (event.matches(StandardKey.Open) || (event.key === Qt.Key_L && event.modifiers === Qt.ControlModifier))
            path.edit()
    }
    open: chooser.isOpen
    scrim: FirePalette.scrim
    onEscaped: chooser.cancel()
    onOpened: list.takeFocus()

    FocusWrap {
        id: start

        isLast: false
        other: end
    }

    GlassSurface {
        id: card

        anchors.centerIn: parent
        anchors.verticalCenterOffset: Motion.reduced ? 0 : 8 * (1 - dialog.shown)
        backdrop: dialog.backdrop
        height: Math.min(480, dialog.height - 2 * Metrics.space24)
        kind: Glass.dialog
        opacity: Math.max(0, Math.min(1, dialog.shown))
        radius: Metrics.dialogRadius
        width: Math.min(640, dialog.width - 2 * Metrics.space24)

        MouseArea { anchors.fill: parent }

        Text {
            id: title

            Accessible.ignored: true
            anchors { left: parent.left; leftMargin: Metrics.space24 }
            color: FirePalette.inkHeading
            font: Typography.dialogTitle
            text: dialog.chooser.wantsFolder ? qsTr("Export to a folder") : qsTr("Add image")
            y: Metrics.space20
        }

        FolderPlaces {
            id: places

            anchors { left: parent.left; top: path.bottom; bottom: buttons.top; margins: Metrics.space16 }
            chooser: dialog.chooser
            width: 148
        }

        FolderPathField {
            id: path

            anchors { left: places.right; right: parent.right; top: title.bottom }
            anchors { leftMargin: Metrics.space12; rightMargin: Metrics.space20; topMargin: Metrics.space14 }
            chooser: dialog.chooser
            onFinished: list.takeFocus()
        }

        FolderList {
            id: list

            anchors { left: path.left; right: path.right; top: path.bottom; bottom: buttons.top }
            anchors { topMargin: Metrics.space10; bottomMargin: Metrics.space14 }
            chooser: dialog.chooser
        }

        // Shows that the button chooses the shown folder, not the selected row.
        Text {
            anchors { left: parent.left; leftMargin: Metrics.space24; right: buttons.left; rightMargin: Metrics.space16 }
            anchors.verticalCenter: buttons.verticalCenter
            color: FirePalette.inkMeta
            elide: Text.ElideMiddle
            font: Typography.message
            text: qsTr("Into “%1”").arg(dialog.chooser.folderName)
            textFormat: Text.PlainText
            visible: dialog.chooser.wantsFolder
        }

        Row {
            id: buttons

            anchors { right: parent.right; bottom: parent.bottom; margins: Metrics.space20 }
            spacing: Metrics.space10

            GlassButton {
                name: qsTr("Cancel")
                width: 110
                onTriggered: dialog.chooser.cancel()
            }

            WarmButton {
                enabled: dialog.chooser.problem === "" && !dialog.chooser.isListing
                name: qsTr("Export here")
                visible: dialog.chooser.wantsFolder
                width: 130
                onTriggered: dialog.chooser.takeFolder()
            }

            WarmButton {
                enabled: list.currentRow >= 0
                name: qsTr("Open")
                visible: !dialog.chooser.wantsFolder
                width: 110
                onTriggered: dialog.chooser.take(list.currentRow)
            }
        }
    }

    FocusWrap {
        id: end

        isLast: true
        other: start
    }
}
