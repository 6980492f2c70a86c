import QtQuick
import Pelko

/// The row after the last page, which creates a page and shows how many places are left.
PressableControl {
    id: root

    required property string placesLeft
    required property bool chosen

    Accessible.description: placesLeft
    controlRadius: Metrics.listRowRadius
    implicitHeight: Metrics.newPageRowHeight
    name: qsTr("New Document")
    pressScale: 1

    background: ChosenRowBackground {
        chosen: root.chosen
        pointedAt: root.hovered
    }

    SymbolIcon {
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        color: FirePalette.amberSoft
        height: Metrics.navigationGlyph
        name: "plus"
        width: Metrics.pageRowIndent
    }

    Text {
        Accessible.ignored: true
        anchors { left: parent.left; leftMargin: Metrics.pageRowIndent; verticalCenter: parent.verticalCenter }
        color: FirePalette.amberSoft
        font: Typography.listTitle
        renderType: Text.NativeRendering
        text: root.name
    }

    Text {
        Accessible.ignored: true
        anchors { right: parent.right; rightMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        color: FirePalette.inkMeta
        font: Typography.meta
        renderType: Text.NativeRendering
        text: root.placesLeft
        textFormat: Text.PlainText
    }
}
