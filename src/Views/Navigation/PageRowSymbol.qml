import QtQuick
import Pelko

/// At the head of a row: a spark, or a dot that glows for the page that is open.
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
