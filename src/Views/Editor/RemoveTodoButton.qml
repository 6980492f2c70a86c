import Pelko

/// The cross that removes a checklist entry.
PressableControl {
    id: root

    implicitHeight: Metrics.todoToggleSize
    implicitWidth: Metrics.todoToggleSize
    name: qsTr("Remove")

    PointingHand {}

    SymbolIcon {
        anchors.centerIn: parent
        color: root.pointedAt ? FirePalette.destructive : FirePalette.inkMeta
        name: "xmark"
        size: Metrics.removeTodoGlyph
    }
}
