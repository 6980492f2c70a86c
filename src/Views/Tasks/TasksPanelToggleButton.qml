import QtQuick
import Pelko

/// Opens and closes the tasks panel. Its label names the action; it grows a little under the pointer.
PressableControl {
    id: button

    required property TasksViewModel tasks

    Accessible.checked: tasks.isShown
    Accessible.description: qsTr("Tasks panel")
    // Qt 6.4 exposes the checked state only of checkable controls.
    checkable: true
    checked: tasks.isShown
    icon.name: tasks.isShown ? "chevron.right" : "sidebar.right"
    implicitHeight: Metrics.chipHeight
    implicitWidth: 2 * Metrics.chipPadding + symbol.width + Metrics.chipGap + Math.ceil(label.implicitWidth)
                   + Metrics.space4 * hoverAmount
    name: tasks.isShown ? qsTr("Hide") : qsTr("Tasks")
    onTriggered: tasks.toggle()

    background: GlassPlate {
        kind: Glass.chip
        lift: 0.06 * button.hoverAmount + 0.05 * button.pressAmount
    }

    Row {
        anchors.centerIn: parent
        spacing: Metrics.chipGap

        SymbolIcon {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            color: label.color
            name: button.icon.name
            rotation: button.mirrored ? 180 : 0
            size: Metrics.chipSymbol
        }

        Text {
            id: label

            Accessible.ignored: true
            anchors.verticalCenter: parent.verticalCenter
            color: Qt.alpha(FirePalette.ink, 0.72 + 0.23 * button.hoverAmount)
            font: Typography.capsule
            text: button.name
            textFormat: Text.PlainText
        }
    }
}
