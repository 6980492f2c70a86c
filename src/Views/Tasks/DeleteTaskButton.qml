import QtQuick
import Pelko

/// The button that deletes a task.
PressableControl {
    id: button

    required property string label

    implicitHeight: Metrics.taskDeleteSize
    implicitWidth: Metrics.taskDeleteSize
    name: qsTr("Delete %1").arg(label)

    PointingHand {}

    SymbolIcon {
        anchors.centerIn: parent
        color: button.pointedAt ? FirePalette.destructive : FirePalette.white(0.3)
        name: "xmark"
        size: Metrics.taskDeleteGlyph
    }
}
