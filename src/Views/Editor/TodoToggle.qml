import QtQuick
import QtQuick.Templates as T
import Pelko

/// The round tick of a checklist entry. It shows what the store says; a click only asks.
T.AbstractButton {
    id: root

    required property bool done
    required property string label

    signal toggled

    Accessible.checkable: true
    Accessible.checked: done
    Accessible.name: label === "" ? qsTr("To do...") : label
    Accessible.role: Accessible.CheckBox
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    focusPolicy: Qt.TabFocus
    implicitHeight: Metrics.todoToggleSize
    implicitWidth: Metrics.todoToggleSize
    onClicked: toggled()

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    contentItem: SymbolIcon {
        color: root.done ? FirePalette.amber : root.hovered ? FirePalette.amberSoft : FirePalette.inkMeta
        name: root.done ? "checkmark.circle.fill" : "circle"
        scale: root.down ? 0.9 : 1
        size: Metrics.todoToggleSize

        Behavior on scale {
            NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
        }
    }

    FocusRing {
        target: root
    }
}
