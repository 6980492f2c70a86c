import QtQuick
import Pelko

/// The round check box of a checklist entry. It shows the state in the store; a click only requests a change.
PressableControl {
    id: root

    required property bool done
    required property string label

    Accessible.checkable: true
    Accessible.checked: done
    Accessible.role: Accessible.CheckBox
    Accessible.onToggleAction: clicked()
    // Qt 6.4 exposes a button that is not checkable as a push button, whatever its role.
    checkable: true
    checked: done
    implicitHeight: Metrics.todoToggleSize
    implicitWidth: Metrics.todoToggleSize
    name: label === "" ? qsTr("To do...") : label
    pressScale: 0.9

    PointingHand {}

    SymbolIcon {
        anchors.fill: parent
        color: root.done ? FirePalette.amber : root.pointedAt ? FirePalette.amberSoft : FirePalette.inkMeta
        name: root.done ? "checkmark.circle.fill" : "circle"
    }
}
