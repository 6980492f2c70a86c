pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A checklist.
BlockRow {
    id: root

    required property TodoListModel todos

    block: editor

    BlockEditor {
        id: editor

        /// The visible part of this item.
        readonly property real seenFrom: root.page.viewTop - root.y
        readonly property real seenHeight: root.page.viewHeight

        function makeField(address: textAddress) {
            if (address.partID !== "")
                root.todos?.keep(address)
            column.forceLayout() // new entries have no position yet
        }

        function showPart() {
            root.todos?.setView(seenFrom, seenFrom + seenHeight, Typography.checklistRow)
        }

        function takeFocus(address: textAddress, caret: int) {
            makeField(address)
            control?.forceActiveFocus(Qt.TabFocusReason)
            for (let row = 0; row < entries.count; ++row) {
                const entry = entries.itemAt(row) as TodoRow
                if (entry && (address.partID === "" || entry.address.partID === address.partID))
                    return entry.takeFocus(caret)
            }
        }

        Accessible.name: BlockKinds.checklist.tip
        Accessible.role: Accessible.List
        anchors.fill: parent
        control: entries.count === 0 ? first : null
        cornerRadius: Metrics.stickyRadius
        firstLine: column.y + Typography.stickyLabel.pixelSize / 2
        focus: true
        implicitHeight: column.implicitHeight + 2 * Metrics.space14
        onSeenFromChanged: showPart()
        onSeenHeightChanged: showPart()

        Rectangle {
            anchors.fill: parent
            border { width: 1; color: FirePalette.stickyHairline }
            radius: Metrics.stickyRadius
            gradient: Gradient {
                GradientStop { position: 0; color: FirePalette.stickyGroundTop }
                GradientStop { position: 1; color: FirePalette.stickyGroundFoot }
            }
        }

        Column {
            id: column

            anchors { left: parent.left; right: parent.right; margins: Metrics.stickyPadding }
            y: Metrics.space14

            StickyHeader {
                bottomPadding: Metrics.space6
            }

            Repeater {
                id: entries

                model: root.todos

                TodoRow {
                    page: root.page
                    width: column.width
                    onActiveFocusChanged: if (activeFocus) root.todos?.keep(address)
                    onEntryHeightChanged: root.todos?.setHeight(address, entryHeight)
                    Component.onCompleted: root.todos?.setHeight(address, entryHeight)
                }
            }

            Item {
                height: root.todos?.gapBelow ?? 0
                width: 1
            }

            FirstTodoButton {
                id: first

                visible: root.todos?.isEmpty ?? true
                width: column.width
                onTriggered: root.page.editor.appendTodo(root.blockID)
            }
        }
    }
}
