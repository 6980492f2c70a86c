import QtQuick
import Pelko

/// A button with the symbol `icon.name`. It expands and shows its label under the pointer and with keyboard focus.
PressableControl {
    id: chip

    required property string tip

    name: tip
    pressScale: 0.945
    implicitHeight: Metrics.chipHeight
    implicitWidth: Metrics.chipMinimumWidth + (Metrics.chipGap + Math.ceil(label.implicitWidth)) * hoverAmount

    background: GlassPlate {
        kind: Glass.chip
        lift: 0.06 * chip.hoverAmount + 0.05 * chip.pressAmount
    }

    SymbolIcon {
        id: symbol

        anchors { left: parent.left; leftMargin: Metrics.chipPadding; verticalCenter: parent.verticalCenter }
        name: chip.icon.name
        size: Metrics.chipSymbol
        color: Qt.alpha(FirePalette.ink, 0.72 + 0.23 * chip.hoverAmount)
    }

    Item {
        anchors.left: symbol.right
        anchors.leftMargin: Metrics.chipGap
        anchors.right: parent.right
        height: parent.height
        clip: true
        opacity: chip.hoverAmount
        visible: opacity > 0

        Text {
            id: label

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            text: chip.tip
            textFormat: Text.PlainText
            font: Typography.capsule
            color: Qt.alpha(FirePalette.ink, 0.95)
            Accessible.ignored: true
        }
    }
}
