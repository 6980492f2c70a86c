import QtQuick
import Pelko

/// One entry of a checklist: toggle, text, and a button to remove it, which is shown while the pointer or the focus is
/// in the row and the page is not quiet.
FocusScope {
    id: root

    required property textAddress address
    required property string text
    required property bool done
    /// The space above for entries without rows.
    required property real gap
    required property PageContext page

    readonly property real entryHeight: Math.max(Typography.checklistRow, field.height + Metrics.space6)

    function takeFocus(caret: int) {
        field.takeFocus(caret)
    }

    /// Removes the entry; the focus goes to its place.
    function remove() {
        if (cross.activeFocus)
            field.forceActiveFocus(Qt.OtherFocusReason)
        page.editor.removeTodo(address)
    }

    implicitHeight: gap + entryHeight

    HoverHandler {
        id: hover
    }

    TodoToggle {
        id: toggle

        done: root.done
        label: root.text
        y: root.gap + (Typography.checklistRow - height) / 2
        onTriggered: root.page.editor.toggleTodo(root.address)
    }

    WritingField {
        id: field

        Accessible.description: placeholder
        Accessible.name: root.text === "" ? placeholder : root.text
        address: root.address
        anchors { left: toggle.right; leftMargin: Metrics.todoGap; right: cross.left; rightMargin: Metrics.space6 }
        color: root.done ? FirePalette.inkTicked : FirePalette.inkChecklist
        content: root.text
        focus: true
        font { family: Typography.checklist.family; pointSize: Typography.checklist.pointSize; strikeout: root.done }
        lineHeight: Metrics.todoLine
        page: root.page
        placeholder: qsTr("To do...")
        y: root.gap + (Typography.checklistRow - Metrics.todoLine) / 2
    }

    RemoveTodoButton {
        id: cross

        anchors { right: parent.right; verticalCenter: toggle.verticalCenter }
        opacity: hover.hovered || activeFocus ? 1 : 0
        visible: !root.page.quiet
        // The focus must not stay in a hidden item.
        onVisibleChanged: if (!visible && activeFocus) field.forceActiveFocus(Qt.OtherFocusReason)
        onTriggered: root.remove()
    }
}
