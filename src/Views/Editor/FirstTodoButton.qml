import QtQuick
import QtQuick.Templates as T
import Pelko

/// Stands where the entries of an empty checklist would, and makes the first one.
T.AbstractButton {
    id: root

    required property Item keys

    signal triggered

    Accessible.name: text
    Accessible.role: Accessible.Button
    Accessible.onPressAction: clicked()
    Keys.forwardTo: [keys]
    focusPolicy: Qt.TabFocus
    implicitHeight: Typography.checklistRow
    text: qsTr("To do...")
    onClicked: triggered()

    contentItem: Row {
        spacing: Metrics.todoGap

        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkPlaceholder
            name: "plus"
            size: Metrics.todoToggleSize
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkPlaceholder
            font: Typography.checklist
            text: root.text
        }
    }

    FocusRing {
        target: root
    }
}
