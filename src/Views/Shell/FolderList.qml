pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The folders and pictures of the shown folder.
FocusScope {
    id: root

    required property FolderChooser chooser
    readonly property alias currentRow: list.currentIndex

    function takeFocus() {
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    function seek(text: string) {
        sought.text += text
        sought.restart()
        const row = chooser.rowStartingWith(sought.text, list.currentIndex)
        if (row >= 0)
            list.currentIndex = row
    }

    Rectangle {
        anchors.fill: parent
        border { width: 1; color: FirePalette.hairline }
        color: FirePalette.white(0.025)
        radius: Metrics.fieldRadius
    }

    ListView {
        id: list

        Accessible.name: qsTr("Files")
        Accessible.role: Accessible.List
        Keys.onEnterPressed: root.chooser.take(currentIndex)
        Keys.onPressed: event => {
            event.accepted = true
            if (event.key === Qt.Key_Backspace)
                root.chooser.goUp()
            else if (event.key === Qt.Key_Home)
                currentIndex = Math.min(0, count - 1)
            else if (event.key === Qt.Key_End)
                currentIndex = count - 1
            else if (event.key === Qt.Key_PageDown)
                currentIndex = Math.min(count - 1, currentIndex + 8)
            else if (event.key === Qt.Key_PageUp)
                currentIndex = Math.max(Math.min(0, count - 1), currentIndex - 8)
            else if (/[^\x00-\x20\x7f]/.test(event.text) && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)))
                root.seek(event.text)
            else
                event.accepted = false
        }
        Keys.onReturnPressed: root.chooser.take(currentIndex)
        activeFocusOnTab: true
        anchors { fill: parent; margins: Metrics.space6; bottomMargin: note.overRows ? root.height - note.y : Metrics.space6 }
        boundsBehavior: Flickable.StopAtBounds
        // With a cache, rows are cancelled too late when the model shrinks, and Qt warns.
        cacheBuffer: 0
        clip: true
        focus: true
        highlightMoveDuration: 0
        model: root.chooser.entries
        onHeightChanged: positionViewAtIndex(currentIndex, ListView.Contain)

        delegate: FolderRowButton {
            id: row

            required property int index
            required property bool isFolder

            Accessible.role: Accessible.ListItem
            Keys.enabled: false // the list, which hands its focus to the current row, knows what keys do
            Accessible.selected: chosen
            chosen: ListView.isCurrentItem
            focusPolicy: Qt.NoFocus
            symbol: isFolder ? "folder" : "photo"
            width: ListView.view?.width ?? 0
            onDoubleClicked: root.chooser.take(index)
            onTriggered: list.currentIndex = index
        }
    }

    // In the middle of an empty list, otherwise below the rows.
    Text {
        id: note

        readonly property bool overRows: visible && list.count > 0

        anchors.horizontalCenter: parent.horizontalCenter
        bottomPadding: overRows ? Metrics.space10 : 0
        color: FirePalette.inkMeta
        font: Typography.message
        horizontalAlignment: Text.AlignHCenter
        text: root.chooser.problem !== "" ? root.chooser.problem
            : root.chooser.wantsFolder ? qsTr("No folders in here.") : qsTr("No pictures here.")
        visible: root.chooser.problem !== "" || (list.count === 0 && !root.chooser.isListing)
        topPadding: bottomPadding
        width: parent.width - 2 * Metrics.space24
        wrapMode: Text.Wrap
        y: list.count > 0 ? parent.height - height : (parent.height - height) / 2
    }

    PelkoScrollBar {
        anchors { bottom: list.bottom; right: parent.right; top: list.top }
        flickable: list
    }

    Timer {
        id: sought

        property string text

        interval: 1000
        onTriggered: text = ""
    }

    Connections {
        function onListed(row: int) {
            sought.text = ""
            list.currentIndex = Math.min(row, list.count - 1)
            list.positionViewAtIndex(Math.max(0, list.currentIndex), ListView.Contain)
        }

        target: root.chooser
    }
}
