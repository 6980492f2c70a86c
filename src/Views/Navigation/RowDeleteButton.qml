import QtQuick
import Pelko

/// The round delete button at the end of a row.
PressableControl {
    id: root

    implicitHeight: Metrics.rowButtonSize
    implicitWidth: Metrics.rowButtonSize

    background: Rectangle {
        color: root.hovered ? FirePalette.ember : FirePalette.hoverFill
        radius: height / 2

        Behavior on color { ColorAnimation { duration: Motion.fade } }
    }

    SymbolIcon {
        anchors.centerIn: parent
        color: FirePalette.white(0.86)
        name: "trash"
        size: Metrics.navigationGlyph
    }
}
