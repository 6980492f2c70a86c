pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A checklist on a warm note.
BlockEditor {
    id: root

    required property string blockID
    required property PageContext page
    required property TodoListModel todos
    /// The part of this item that is in sight.
    required property real seenFrom
    required property real seenHeight

    function makeField(todoID: string) {
        if (todoID !== "")
            todos?.keep(todoID)
        column.forceLayout() // entries that were just created have no place yet
    }

    function showPart() {
        todos?.setView(seenFrom, seenFrom + seenHeight, Typography.checklistRow)
    }

    function takeFocus(todoID: string, caret: int) {
        makeField(todoID)
        control?.forceActiveFocus(Qt.TabFocusReason)
        for (let row = 0; row < entries.count; ++row) {
            const entry = entries.itemAt(row) as TodoRow
            if (entry && (todoID === "" || entry.todoID === todoID))
                return entry.takeFocus(caret)
        }
    }

    Accessible.name: BlockKinds.checklist.tip
    Accessible.role: Accessible.List
    control: entries.count === 0 ? first : null
    firstLine: column.y + Typography.stickyLabel.pixelSize / 2
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
                blockID: root.blockID
                page: root.page
                width: column.width
                onActiveFocusChanged: if (activeFocus) root.todos?.keep(todoID)
                onEntryHeightChanged: root.todos?.setHeight(todoID, entryHeight)
                Component.onCompleted: root.todos?.setHeight(todoID, entryHeight)
                onEdited: (value, caret) => root.page.editor.typedTodo(root.blockID, todoID, value, caret)
                onRemoved: root.page.editor.removeTodo(root.blockID, todoID)
                onToggled: root.page.editor.toggleTodo(root.blockID, todoID)
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
