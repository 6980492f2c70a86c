import QtQuick
import Pelko

/// The field that adds a task to the open page.
FieldBackground {
    id: plate

    required property TasksPanelViewModel panel
    readonly property alias input: field

    function takeFocus() {
        field.forceActiveFocus(Qt.OtherFocusReason)
    }

    active: field.activeFocus
    implicitHeight: Metrics.chipHeight
    radius: Metrics.washRadius

    SymbolIcon {
        id: plus

        anchors { left: parent.left; leftMargin: Metrics.space10; verticalCenter: parent.verticalCenter }
        color: FirePalette.white(0.4)
        name: "plus.circle"
        size: 11
    }

    LineField {
        id: field

        anchors { left: plus.right; leftMargin: Metrics.space6; right: parent.right; rightMargin: Metrics.space10 }
        anchors.verticalCenter: parent.verticalCenter
        color: FirePalette.white(0.8)
        content: plate.panel.newTaskText
        face: Typography.capsule
        name: qsTr("Add task")
        placeholder: qsTr("Add task...")
        onAccepted: plate.panel.submitNewTask()
        onEdited: text => plate.panel.typed(text)
    }
}
