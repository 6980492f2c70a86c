import QtQuick
import Pelko

/// The button in an empty checklist that adds the first entry.
PressableControl {
    id: root

    controlRadius: Metrics.listRowRadius
    implicitHeight: Typography.checklistRow
    name: qsTr("To do...")
    pressScale: 1

    Row {
        anchors.fill: parent
        spacing: Metrics.todoGap

        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkPlaceholder
            name: "plus"
            size: Metrics.todoToggleSize
        }

        Text {
            Accessible.ignored: true
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.inkPlaceholder
            font: Typography.checklist
            text: root.name
        }
    }
}
