import QtQuick
import Pelko

/// A row of the file chooser: a symbol and a name.
PressableControl {
    id: root

    required property string symbol
    property bool chosen: false

    controlRadius: Metrics.menuRowRadius
    implicitHeight: Metrics.menuRowHeight
    pressScale: 1

    background: Rectangle {
        color: root.hovered ? FirePalette.rowHover : "transparent"
        radius: Metrics.menuRowRadius

        Rectangle {
            anchors.fill: parent
            border.color: FirePalette.chosenRowHairline
            radius: parent.radius
            visible: root.chosen

            gradient: Gradient {
                GradientStop { position: 0; color: FirePalette.chosenRowTop }
                GradientStop { position: 1; color: FirePalette.chosenRowFoot }
            }
        }
    }

    SymbolIcon {
        id: icon

        anchors { left: parent.left; leftMargin: Metrics.space10; verticalCenter: parent.verticalCenter }
        color: Qt.alpha(FirePalette.ink, 0.72)
        name: root.symbol
        size: Metrics.chipSymbol
    }

    Text {
        Accessible.ignored: true
        anchors { left: icon.right; leftMargin: Metrics.space10; right: parent.right; rightMargin: Metrics.space10 }
        anchors.verticalCenter: parent.verticalCenter
        color: FirePalette.inkBody
        elide: Text.ElideMiddle
        font: Typography.menuRow
        text: root.name
        textFormat: Text.PlainText
    }
}
