import QtQuick
import Pelko

/// The symbol at the start of a row: a spark, or a dot, which glows for the open page.
Item {
    id: root

    required property bool isOpen
    required property bool isSpark

    Rectangle {
        anchors.centerIn: parent
        color: root.isOpen ? FirePalette.amber : FirePalette.white(0.3)
        height: width
        radius: width / 2
        visible: !root.isSpark
        width: Metrics.placeDot
    }

    SymbolIcon {
        anchors.centerIn: parent
        color: root.isOpen ? FirePalette.amber : FirePalette.amberSoft
        name: "sparkles"
        size: Metrics.navigationGlyph
        visible: root.isSpark
    }
}
